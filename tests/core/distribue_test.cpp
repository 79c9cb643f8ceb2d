#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "apoio/baralho_roteiro.h"
#include "apoio/jogo_de_teste.h"
#include "core/distribue.h"
#include "machine/classico.h"

namespace corvina {
namespace {

using teste::baralhoCom;
using teste::cartas;
using teste::JogoDeTeste;
using teste::textoDaMao;

// Answers every draw with the same number.
class AcasoFixo : public Acaso {
  public:
    explicit AcasoFixo(double valor) : valor_(valor) {}
    void mexe() override { ++mexidas; }
    double rnd() override { return valor_; }
    int mexidas = 0;

  private:
    double valor_;
};

TEST(Embaralha, EveryIdOnceForAnySeed) {
    for (std::uint64_t semente : {1u, 2u, 99u, 123456u}) {
        AcasoSemente acaso(semente);
        Embaralhado ids = embaralha(acaso);
        std::vector<int16> vistos(ids.begin() + 1, ids.end());
        std::sort(vistos.begin(), vistos.end());
        std::vector<int16> todos(kCartasNoJogo);
        std::iota(todos.begin(), todos.end(), int16{1});
        EXPECT_EQ(vistos, todos) << "seed " << semente;
    }
}

TEST(Embaralha, StirsBeforeEveryDrawAndLowersTheBoundOnTheTopId) {
    // Always the highest number: each draw hits topo, which then falls, so ids come 104..1.
    AcasoFixo acaso(0.9999999);
    const Embaralhado ids = embaralha(acaso);
    for (int p = 1; p <= kCartasNoJogo; ++p) ASSERT_EQ(ids[p], kCartasNoJogo + 1 - p);
    EXPECT_EQ(acaso.mexidas, kCartasNoJogo);
}

TEST(Embaralha, AScriptedShuffleGivesItsDeck) {
    const Embaralhado alvo = baralhoCom("13/4 1/1 13/4 7/2 1/1");
    teste::AcasoRoteiro acaso(alvo);
    EXPECT_EQ(embaralha(acaso), alvo);
}

TEST(Sorte, TrueWithThatChanceInAHundred) {
    struct Caso {
        double rnd;
        int percentual;
        bool esperado;
    };
    for (const Caso c : {Caso{0.0, 15, true}, Caso{0.14, 15, true}, Caso{0.15, 15, false},
                         Caso{0.69, 70, true}, Caso{0.70, 70, false}, Caso{0.9999, 100, true}}) {
        AcasoFixo acaso(c.rnd);
        EXPECT_EQ(Sorte(acaso, c.percentual), c.esperado) << c.rnd << " " << c.percentual;
        EXPECT_EQ(acaso.mexidas, 1);
    }
}

TEST(ChanceDeTroca, FavoursTheMachineMoreAsThePlayerLeads) {
    struct Caso {
        int16 jog, mac;
        std::optional<int> chance;
    };
    for (const Caso c :
         {Caso{3, 2, 70}, Caso{3, 0, 70}, Caso{3, 3, 15}, Caso{2, 1, 50}, Caso{1, 0, 50},
          Caso{0, 0, 15}, Caso{2, 2, 15}, Caso{2, 3, std::nullopt}, Caso{0, 1, std::nullopt}})
        EXPECT_EQ(chanceDeTroca(c.jog, c.mac), c.chance) << c.jog << " to " << c.mac;
}

constexpr const char* kBoa = "7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 9/1";   // 43
constexpr const char* kFraca = "1/1 3/2 5/3 7/4 9/2 11/2 13/3 2/4 6/1"; // 0

struct CasoTroca {
    const char* jog;
    const char* mac;
    int16 pontosJog, pontosMac;
    bool sorte;
    std::optional<int> perguntado;
    bool trocou;
};

class ReparteTest : public testing::TestWithParam<CasoTroca> {};

TEST_P(ReparteTest, ExchangesOnlyABetterPlayersHand) {
    const CasoTroca& c = GetParam();
    AcasoFixo acaso(c.sorte ? 0.0 : 0.999);
    VistaNula vista;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    jogo.modulo.pontosJog = c.pontosJog;
    jogo.modulo.pontosMac = c.pontosMac;
    const Reparticao r = reparte(jogo, baralhoCom(std::string(c.jog) + " " + c.mac));
    EXPECT_EQ(r.sortePercent, c.perguntado);
    EXPECT_EQ(r.trocou, c.trocou);
    EXPECT_EQ(textoDaMao(jogo.mesa, Lado::Jog), c.trocou ? c.mac : c.jog);
    EXPECT_EQ(textoDaMao(jogo.mesa, Lado::Mac), c.trocou ? c.jog : c.mac);
}

INSTANTIATE_TEST_SUITE_P(
    Trocas, ReparteTest,
    testing::Values(CasoTroca{kBoa, kFraca, 3, 2, true, 70, true},
                    CasoTroca{kBoa, kFraca, 3, 2, false, 70, false},
                    CasoTroca{kBoa, kFraca, 3, 3, true, 15, true},
                    CasoTroca{kBoa, kFraca, 1, 0, true, 50, true},
                    CasoTroca{kBoa, kFraca, 2, 3, true, std::nullopt, false},
                    // a better machine's hand stays with the machine; equal hands stay put
                    CasoTroca{kFraca, kBoa, 3, 0, true, std::nullopt, false},
                    CasoTroca{kBoa, kBoa, 0, 0, true, std::nullopt, false}));

TEST(Reparte, TheRestOfTheDeckIsTheStockFromItsLowEnd) {
    AcasoSemente acaso(3);
    VistaNula vista;
    vista.registra = true;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    const Embaralhado ids = embaralha(acaso);
    reparte(jogo, ids);
    EXPECT_EQ(jogo.mesa.qtdBaralho, kCartasNoMonte);
    EXPECT_EQ(jogo.mesa.qtdJog, 9);
    EXPECT_EQ(jogo.mesa.qtdMac, 9);
    for (int i = 1; i <= kCartasNoMonte; ++i)
        ASSERT_EQ(cartaNa(jogo.mesa.baralhoValor, jogo.mesa.baralhoNaipe, i),
                  cartaDoId(ids[i + 18]));
    EXPECT_EQ(vista.chamadasDe("mostraContagens").size(), 1u);
}

} // namespace
} // namespace corvina

#include <gtest/gtest.h>

#include "apoio/jogo_de_teste.h"
#include "core/contagem.h"
#include "core/vez_da_maquina.h"
#include "machine/tentativas.h"

namespace corvina {
namespace {

using teste::JogoDeTeste;
using teste::textoDaMao;

constexpr const char* kMaoSolta = "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1";
constexpr const char* kJogador = "2/2 4/3 6/4 8/1 10/2 12/3 1/4 3/1 5/2";

struct CasoVez {
    const char* mao;
    const char* topo;
    const char* monte; // its last card is drawn first
    bool pegaDescarte;
    int16 descarte; // the slot thrown away, 10 for the drawn card
    const char* maoDepois;
    const char* topoDepois;
};

class VezDaMaquinaTest : public testing::TestWithParam<CasoVez> {};

TEST_P(VezDaMaquinaTest, TakesAndThrowsByTheCount) {
    const CasoVez& c = GetParam();
    JogoDeTeste t;
    t.arma(kJogador, c.mao, c.topo, c.monte);
    const int16 monteAntes = t.jogo.mesa.qtdBaralho;
    EXPECT_EQ(ateOFim(macjoga(t.jogo)), FimDaVez::Descartou);
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, c.pegaDescarte ? monteAntes : monteAntes - 1);
    EXPECT_TRUE(t.chamou("apresentacartasdamac " + std::to_string(c.descarte) + " " +
                         std::to_string(c.descarte)));
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Mac), c.maoDepois);
    EXPECT_EQ(t.topo(), c.topoDepois);
    EXPECT_EQ(t.jogo.mesa.qtdMac, 9);
    EXPECT_EQ(t.vista.chamadas.back(), "mostraPrompt Pegue uma carta no baralho ou no descarte");
}

INSTANTIATE_TEST_SUITE_P(
    Vezes, VezDaMaquinaTest,
    testing::Values(
        // the first of the eight slots that reach 3 goes
        CasoVez{kMaoSolta, "1/2", "8/3", true, 2, "1/1 5/3 7/4 9/1 11/2 13/3 2/4 6/1 1/2", "3/2"},
        // the drawn card's tries run from slot 9 down: slot 9 goes
        CasoVez{kMaoSolta, "10/4", "1/2", false, 9, "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 1/2", "6/1"},
        // nothing rises: the drawn card goes straight on to the pile
        CasoVez{kMaoSolta, "10/4", "8/3", false, 10, kMaoSolta, "8/3"},
        // one point is enough
        CasoVez{kMaoSolta, "4/4", "8/3", true, 1, "3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1 4/4", "1/1"},
        CasoVez{"4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", "13/4", "8/3", true, 9,
                "4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 13/4", "6/2"},
        CasoVez{"4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", "2/2", "13/4", false, 9,
                "4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 13/4", "6/2"},
        // the short count can't see the win that 12/1 would make: it draws instead
        CasoVez{"13/1 13/2 2/1 3/1 4/1 13/4 1/1 13/3 7/2", "12/1", "5/4", false, 10,
                "13/1 13/2 2/1 3/1 4/1 13/4 1/1 13/3 7/2", "5/4"},
        // a dealt 60 can't rise: it draws and throws the drawn card
        CasoVez{"7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4", "10/1", "2/3", false, 10,
                "7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4", "2/3"}));

TEST(VezDaMaquina, TriesOfThePileGoSlotBySlot) {
    struct Caso {
        const char* mao;
        const char* carta;
        std::vector<int16> esperado;
    };
    const Caso casos[] = {
        {kMaoSolta, "1/2", {1, 3, 3, 3, 3, 3, 3, 3, 3}},
        {kMaoSolta, "4/4", {1, 1, 1, 1, 1, 1, 1, 0, 1}},
        {"4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", "13/4", {43, 43, 43, 43, 43, 43, 43, 41, 60}},
        {"13/1 13/2 2/1 3/1 4/1 13/4 1/1 13/3 7/2", "12/1", {40, 40, 43, 41, 43, 40, 43, 40, 43}},
    };
    for (const Caso& c : casos) {
        Mesa mesa = teste::mesaCom(Lado::Mac, c.mao);
        const Carta nova = teste::cartas(c.carta).at(0);
        std::vector<int16> tentativas;
        for (int i = 1; i <= 9; ++i) {
            Mesa tenta = mesa;
            poeCarta(tenta.macValor, tenta.macNaipe, i, nova);
            tentativas.push_back(TemQuantosGrupos(tenta, Lado::Mac, true));
        }
        EXPECT_EQ(tentativas, c.esperado) << c.mao << " with " << c.carta;
        const Tentativa t = tentaCarta(teste::cartas(c.mao), nova, false);
        EXPECT_EQ(t.melhorPontos, *std::max_element(c.esperado.begin(), c.esperado.end()));
    }
}

TEST(VezDaMaquina, SpentStockEndsTheHandWithNoPoint) {
    JogoDeTeste t;
    t.arma(kJogador, kMaoSolta, "10/4", "");
    t.jogo.modulo.pontosJog = 2;
    EXPECT_EQ(ateOFim(macjoga(t.jogo)), FimDaVez::AcabouBaralho);
    EXPECT_TRUE(t.chamou("caixaMensagem Acabou o Baralho|0|"));
    EXPECT_LT(t.ordem("caixaMensagem Acabou o Baralho|0|"), t.ordem("Habilita 1"));
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, kCartasNoMonte) << "a new hand was dealt";
    EXPECT_EQ(t.jogo.modulo.pontosJog, 2);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 0);
}

// The pile after a take is capped at four; the throw that follows adds one, uncapped. A sound
// for each, when sounds are on.
TEST(VezDaMaquina, PileTakeLeavesTheCardTakenInTheHand) {
    for (const bool som : {true, false}) {
        JogoDeTeste t;
        t.arma(kJogador, kMaoSolta, "1/2", "8/3");
        t.jogo.modulo.qtdDescarte = 7;
        t.jogo.modulo.tocarSom = som;
        ateOFim(macjoga(t.jogo));
        EXPECT_EQ(t.jogo.modulo.qtdDescarte, 5);
        EXPECT_EQ(t.vista.chamadasDe("tocaSom").size(), som ? 2u : 0u);
    }
}

TEST(VezDaMaquina, LastCardOfTheStockHidesTheStock) {
    JogoDeTeste t;
    t.arma(kJogador, kMaoSolta, "10/4", "8/3");
    ateOFim(macjoga(t.jogo));
    EXPECT_TRUE(t.chamou("mostraPeca costas 0"));
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, 0);
}

} // namespace
} // namespace corvina

// The search behind the hint: its sampler, checked at every decision of seeded hands against the
// real table it must never read; the search's replay from a seed; the seer that reads it.

#include <gtest/gtest.h>

#include "apoio/maos.h"

#include <algorithm>
#include <utility>

#include "core/novojogo.h"
#include "core/vista_nula.h"
#include "machine/amostrador.h"
#include "machine/autojogador.h"
#include "machine/busca.h"
#include "machine/esperto.h"
#include "machine/vidente.h"

namespace corvina {
namespace {

bool mesmoMundo(const Mundo& a, const Mundo& b) {
    return a.doOutro == b.doOutro && a.monte == b.monte;
}

// Esperto in the machine's seat, and at each of its decisions the sampler on the same view,
// checked against the hidden cards of the real table.
class Fiscal : public Nivel {
  public:
    Jogo* jogo = nullptr;
    int decisoes = 0;

    bool pegaDescarte(const VisaoDoNivel& v) override {
        confere(v);
        return esperto_.pegaDescarte(v);
    }
    int16 descarte(const VisaoDoNivel& v, bool doDescarte) override {
        confere(v);
        return esperto_.descarte(v, doDescarte);
    }

  private:
    void confere(const VisaoDoNivel& v) {
        const Mesa& m = jogo->mesa;
        const Amostrador a(v);
        const Conhecimento& k = a.conhecimento();
        std::mt19937_64 sorte(static_cast<std::uint64_t>(++decisoes));
        for (int i = 0; i < 8; ++i) {
            const Mundo w = a.sorteia(sorte);
            int naMao = 0;
            for (int t = 0; t < kTipos; ++t) {
                naMao += w.doOutro[t];
                const auto noMonte = std::count(w.monte.begin(), w.monte.end(), t);
                ASSERT_EQ(k.mao[t] + k.naPilha[t] + w.doOutro[t] + noMonte, 2)
                    << "kind " << t << ": every card of the two packs once, and only once";
                ASSERT_GE(w.doOutro[t], k.doOutro[t]) << "a card the other side is known to hold";
            }
            ASSERT_EQ(naMao, m.qtdJog);
            ASSERT_EQ(static_cast<int>(w.monte.size()), m.qtdBaralho);
        }
        // The same view over other hidden cards: the player's first card changed for the stock's
        // first. The worlds must not change: they come from the view alone.
        Mesa& mesa = jogo->mesa;
        std::swap(mesa.jogValor[1], mesa.baralhoValor[1]);
        std::swap(mesa.jogNaipe[1], mesa.baralhoNaipe[1]);
        const VisaoDoNivel outra = visaoDe(*jogo, Lado::Mac);
        std::swap(mesa.jogValor[1], mesa.baralhoValor[1]);
        std::swap(mesa.jogNaipe[1], mesa.baralhoNaipe[1]);
        std::mt19937_64 s1(7), s2(7);
        ASSERT_TRUE(mesmoMundo(a.sorteia(s1), Amostrador(outra).sorteia(s2)))
            << "the worlds read the hidden cards";
    }
    Esperto esperto_;
};

TEST(Amostrador, EveryWorldHoldsTheTwoPacksAndNothingHidden) {
    int decisoes = 0;
    for (std::uint64_t semente = 1; semente <= 12; ++semente) {
        VistaNula vista;
        AcasoSemente acaso(semente);
        Fiscal fiscal;
        Jogo jogo(vista, acaso, fiscal);
        fiscal.jogo = &jogo;
        jogo.modulo.tocarSom = false;
        jogo.modulo.distribuicaoJusta = true;
        jogo.modulo.nomeJogador = "Teste";
        novojogo(jogo);
        Esperto jogador;
        // The first hand, to its end or through thirty turns.
        for (int vez = 0; vez < 30 && jogo.mesa.qtdBaralho > 0 && !::testing::Test::HasFailure() &&
                          jogo.modulo.pontosJog + jogo.modulo.pontosMac == 0;
             ++vez)
            jogaPeloJogador(jogo, jogador);
        decisoes += fiscal.decisoes;
    }
    EXPECT_GT(decisoes, 100);
}

TEST(Busca, TheSameSeedAndWorldsGiveTheSameAnswerAndMoreWorldsComeOnlyWithTime) {
    VistaNula vista;
    AcasoSemente acaso(3);
    Esperto esperto;
    Jogo jogo(vista, acaso, esperto);
    jogo.modulo.tocarSom = false;
    novojogo(jogo);
    for (int vez = 0; vez < 6; ++vez) jogaPeloJogador(jogo, esperto);
    VisaoDoNivel v = visaoDe(jogo, Lado::Jog);
    const Orcamento o{.ms = 1e9, .mundos = 16};
    const Pesagem a = pesaCompra(v, o), b = pesaCompra(v, o);
    ASSERT_EQ(a.mundos, 16);
    ASSERT_EQ(a.chances.size(), b.chances.size());
    for (std::size_t i = 0; i < a.chances.size(); ++i) {
        EXPECT_EQ(a.chances[i].casa, b.chances[i].casa);
        EXPECT_EQ(a.chances[i].ganha, b.chances[i].ganha);
    }
    // Stopped before it starts: one world, and still an answer.
    const std::atomic<bool> parar{true};
    const Pesagem c = pesaCompra(v, {.ms = 1e9, .parar = &parar});
    EXPECT_EQ(c.mundos, 1);
    EXPECT_FALSE(c.chances.empty());
}

// The seer reads the real other hand: of its two strays it never throws the one that hands the
// other side the hand at once, which no view of the table shows.
TEST(Vidente, NeverFeedsTheHandItSees) {
    const struct {
        const char* outro;
        int16 alimenta; // the slot of the stray the other hand waits for
    } casos[] = {
        {"4/3 5/3 8/1 8/2 8/4 1/1 2/1 3/1 11/4", 9},    // the six of diamonds
        {"12/1 11/1 8/1 8/2 8/4 1/1 2/1 3/1 11/4", 10}, // the king of hearts
    };
    for (const auto& c : casos) {
        VistaNula vista;
        AcasoSemente acaso(1);
        Esperto esperto;
        Jogo jogo(vista, acaso, esperto);
        teste::armaMesa(jogo.mesa, jogo.modulo.qtdDescarte, c.outro,
                        "7/1 7/2 7/3 1/4 2/4 3/4 9/2 10/2 6/3 13/1", "", "13/3 13/4");
        Vidente vidente;
        vidente.ve(jogo, Lado::Mac);
        EXPECT_NE(vidente.descarte(visaoDe(jogo, Lado::Mac), false), c.alimenta) << c.outro;
    }
}

} // namespace
} // namespace corvina

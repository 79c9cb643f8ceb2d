// The levels that play honestly: what Esperto chooses on plain positions, Forte replaying its
// choices, and the arena's mirrored deals.

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "apoio/maos.h"
#include "machine/arena.h"
#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"
#include "machine/nivel_da_mesa.h"

namespace corvina {
namespace {

using teste::cartas;

VisaoDoNivel visao(const char* mao, const char* topo, const char* descartes) {
    VisaoDoNivel v;
    v.mao = cartas(mao);
    const auto t = cartas(topo);
    if (!t.empty()) v.topo = t.front();
    v.descartes = cartas(descartes);
    if (v.topo) v.descartes.push_back(*v.topo);
    v.monte = 40;
    return v;
}

// What a seat knows: the pile is what was thrown less what either side took back, the other
// side holds what it took and did not throw again, and the rest is unseen.
TEST(Conhecimento, PlacesEveryCardThatWasSeen) {
    VisaoDoNivel v = visao("7/1 7/2 1/4 2/4 3/4 5/3 6/3 9/1 11/2", "", "4/3 7/3 9/1 12/2 12/2");
    v.tomadasPeloOutro = cartas("7/3 12/2");
    v.descartesDoOutro = cartas("4/3 12/2");
    v.tomadasProprias = cartas("9/1");
    const Conhecimento k = conhecimentoDe(v);
    const auto de = [](const Copias& c, const char* carta) {
        return static_cast<int>(c[tipoDaCarta(cartas(carta).front())]);
    };
    EXPECT_EQ(de(k.naPilha, "4/3"), 1);
    EXPECT_EQ(de(k.naPilha, "12/2"), 1) << "one queen thrown twice, taken back once";
    EXPECT_EQ(de(k.naPilha, "9/1"), 0) << "taken back by this side: in its hand";
    EXPECT_EQ(de(k.doOutro, "7/3"), 1);
    EXPECT_EQ(de(k.doOutro, "12/2"), 0) << "taken, then thrown again";
    EXPECT_EQ(de(k.invisiveis, "7/3"), 1);
    EXPECT_EQ(de(k.invisiveis, "9/1"), 1);
    EXPECT_EQ(de(k.invisiveis, "4/3"), 1);
    EXPECT_EQ(de(k.invisiveis, "12/2"), 1);
    EXPECT_EQ(de(k.invisiveis, "13/4"), 2);
}

struct CasoCompra {
    const char* mao;
    const char* topo;
    const char* descartes;
    bool pega;
};

class EspertoCompraTest : public testing::TestWithParam<CasoCompra> {};

TEST_P(EspertoCompraTest, TakesThePileOnlyWhenItBringsTheHandCloser) {
    const CasoCompra& c = GetParam();
    Esperto e;
    EXPECT_EQ(e.pegaDescarte(visao(c.mao, c.topo, c.descartes)), c.pega)
        << c.mao << " + " << c.topo;
}

INSTANTIATE_TEST_SUITE_P(
    Posicoes, EspertoCompraTest,
    testing::Values(CasoCompra{"7/1 7/2 1/4 2/4 3/4 5/3 6/3 9/1 11/2", "7/3", "", true},
                    CasoCompra{"7/1 7/2 1/4 2/4 3/4 5/3 6/3 9/1 11/2", "13/1", "", false},
                    // A third seven of hearts makes nothing: twins are one card twice.
                    CasoCompra{"7/1 7/2 1/4 2/4 3/4 5/3 6/3 9/1 11/2", "7/1", "", false},
                    // The queen-king-ace run counts.
                    CasoCompra{"12/2 13/2 1/4 2/4 3/4 5/3 6/3 9/1 11/3", "1/2", "", true},
                    CasoCompra{"7/1 7/2 1/4 2/4 3/4 5/3 6/3 9/1 11/2", "", "", false}));

struct CasoDescarte {
    const char* mao; // ten cards, the last one just drawn
    const char* descartes;
    const char* jogaUmaDestas;
};

class EspertoDescarteTest : public testing::TestWithParam<CasoDescarte> {};

TEST_P(EspertoDescarteTest, ThrowsWhatTheHandNeedsLeast) {
    const CasoDescarte& c = GetParam();
    const VisaoDoNivel v = visao(c.mao, "", c.descartes);
    Esperto e;
    const int16 casa = e.descarte(v, false);
    ASSERT_GE(casa, 1);
    ASSERT_LE(casa, kCasaCompra);
    const auto aceitas = cartas(c.jogaUmaDestas);
    EXPECT_NE(std::find(aceitas.begin(), aceitas.end(), v.mao[casa - 1]), aceitas.end())
        << c.mao << " threw " << escreveCarta(v.mao[casa - 1]);
}

INSTANTIATE_TEST_SUITE_P(Posicoes, EspertoDescarteTest,
                         testing::Values(
                             // Three trincas once the king goes.
                             CasoDescarte{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 4/3 13/2", "", "13/2"},
                             // Both fours of diamonds and the other seven are gone: the diamonds
                             // can't be finished and go before the live hearts.
                             CasoDescarte{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 10/1 11/1",
                                          "4/3 4/3 7/3", "5/3 6/3"},
                             CasoDescarte{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 10/1 11/1",
                                          "9/1 9/1 12/1 12/1", "10/1 11/1"}));

// Two draws ahead against every single card that may come: the sure way of the same sum.
TEST(Forte, WeighsTheNextDrawByEveryCardThatMayCome) {
    const Copias nove = [] {
        Copias c{};
        for (const Carta x : cartas("7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1")) ++c[tipoDaCarta(x)];
        return c;
    }();
    Copias invisiveis{};
    // Only the four and the seven of diamonds can come: each finishes the hand.
    invisiveis[tipoDaCarta({4, 3})] = 1;
    invisiveis[tipoDaCarta({7, 3})] = 1;
    EXPECT_DOUBLE_EQ(valorDaCompra(nove, invisiveis), 0.0);
    // The four, or a king that helps nothing: then one card short, with one way in of two.
    invisiveis[tipoDaCarta({7, 3})] = 0;
    invisiveis[tipoDaCarta({13, 2})] = 1;
    invisiveis[tipoDaCarta({13, 3})] = 1;
    EXPECT_DOUBLE_EQ(valorDaCompra(nove, invisiveis), (0 + 0.5 + 0.5) / 3);
}

TEST(Forte, TakesThePileWhenItFinishesAndLeavesItWhenItHelpsNothing) {
    Forte f;
    EXPECT_TRUE(f.pegaDescarte(visao("7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "4/3", "")));
    EXPECT_FALSE(f.pegaDescarte(visao("7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "13/2", "")));
    EXPECT_EQ(f.descarte(visao("7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 4/3 13/2", "", ""), false), 10);
}

// The table's seat plays the level chosen at the moment of each decision.
TEST(NivelDaMesa, PlaysTheLevelChosenAtEachDecision) {
    const VisaoDoNivel v = visao("7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1 1/1", "", "");
    Module1 m;
    NivelDaMesa seat;
    seat.segue(m);
    for (const DadosDoNivel& d : kNiveisDoJogo) {
        m.nivel = d.tipo;
        EXPECT_EQ(seat.descarte(v, false), d.cria()->descarte(v, false)) << d.chave;
    }
    EXPECT_EQ(seat.descarte(v, false), 10) << "Forte throws the ace of hearts, which helps nothing";
}

// Equal levels on mirrored deals: whatever one seat wins on a deal, the other wins on its
// mirror. A seat's edge or a deal's luck would show here.
TEST(Arena, EqualLevelsSplitMirroredDealsExactly) {
    for (const TipoNivel n : {TipoNivel::Classico, TipoNivel::Esperto}) {
        PedidoArena p;
        p.a = p.b = n;
        p.semente = 5;
        p.pares = 40;
        const ResultadoArena r = arena(p);
        EXPECT_EQ(r.pares, 40);
        EXPECT_EQ(r.maosA, r.maosB) << dadosDoNivel(n).chave;
        EXPECT_EQ(r.partidasA, r.partidasB) << dadosDoNivel(n).chave;
        EXPECT_EQ(r.maosA + r.maosB + r.semVencedor, 80);
        EXPECT_DOUBLE_EQ(r.shareA, 0.5);
        // Every pair splits: over pairs there is no doubt left at all.
        EXPECT_DOUBLE_EQ(r.ciLow, 0.5);
        EXPECT_DOUBLE_EQ(r.ciHigh, 0.5);
    }
}

// Esperto against Clássico, `pares` mirrored pairs of seed 11.
PedidoArena espertoContraClassico(long pares) {
    PedidoArena p;
    p.a = TipoNivel::Esperto;
    p.b = TipoNivel::Classico;
    p.semente = 11;
    p.pares = pares;
    return p;
}

TEST(Arena, RangesAndThreadsAddUpToTheWholeRun) {
    PedidoArena p = espertoContraClassico(30);
    const ResultadoArena todo = arena(p);
    p.threads = 2;
    const ResultadoArena emDois = arena(p);
    EXPECT_EQ(emDois.maosA, todo.maosA);
    EXPECT_EQ(emDois.maosB, todo.maosB);
    EXPECT_EQ(emDois.partidasA, todo.partidasA);
    p.threads = 1;
    p.pares = 12;
    const ResultadoArena inicio = arena(p);
    p.primeiro = 12;
    p.pares = 18;
    const ResultadoArena fim = arena(p);
    EXPECT_EQ(inicio.maosA + fim.maosA, todo.maosA);
    EXPECT_EQ(inicio.maosB + fim.maosB, todo.maosB);
    EXPECT_EQ(inicio.semVencedor + fim.semVencedor, todo.semVencedor);
}

// With a limit on processes that lets no thread start (as `prlimit --nproc` sets it), the arena
// plays every pair on the thread it was called from, with the same figures.
TEST(Arena, ThreadsThatCantStartLeaveTheWorkToTheCaller) {
    PedidoArena p = espertoContraClassico(6);
    const ResultadoArena sozinha = arena(p);
    const pid_t filho = ::fork();
    if (filho == 0) {
        // Root is above the limit: the child gives its rights up first.
        if (::getuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(3);
        const rlimit um{1, 1};
        if (::setrlimit(RLIMIT_NPROC, &um) != 0) ::_exit(3);
        p.threads = 256;
        const ResultadoArena r = arena(p);
        ::_exit(r.threads == 1 && r.maosA == sozinha.maosA && r.maosB == sozinha.maosB ? 0 : 1);
    }
    int estado = 0;
    ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
    ASSERT_TRUE(WIFEXITED(estado)) << "the arena ended by signal " << WTERMSIG(estado);
    EXPECT_EQ(WEXITSTATUS(estado), 0) << "3: the limit could not be set; 1: other figures";
}

TEST(Arena, AnInterruptAnswersForThePairsPlayed) {
    const PedidoArena p = espertoContraClassico(50);
    std::atomic<bool> parar{false};
    const ResultadoArena r = arena(p, &parar, [&](long feitos, long) {
        if (feitos == 3) parar = true;
    });
    EXPECT_TRUE(r.interrompida);
    EXPECT_EQ(r.pares, 3);
    EXPECT_EQ(r.maosA + r.maosB + r.semVencedor, 6);
}

// Two seats that only take each other's throws never reach the end of the stock: the hand is
// stopped and counted apart, and the run goes on.
TEST(Arena, AHandOfTakesAloneIsStoppedWithoutWinner) {
    struct SoPilha : Nivel {
        bool pegaDescarte(const VisaoDoNivel& v) override { return v.topo.has_value(); }
        int16 descarte(const VisaoDoNivel& v, bool) override {
            return static_cast<int16>(v.mao.size()); // the card just taken goes back
        }
    } a, b;
    EXPECT_EQ(jogaUmaMao(a, b, 5), Vencedor::SemFim);
}

} // namespace
} // namespace corvina

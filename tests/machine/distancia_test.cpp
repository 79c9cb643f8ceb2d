#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "apoio/maos.h"
#include "core/vale.h"
#include "machine/distancia.h"

namespace corvina {
namespace {

Copias copiasDe(const char* texto) {
    Copias c{};
    for (const Carta x : teste::cartas(texto)) ++c[tipoDaCarta(x)];
    return c;
}

// What may come: both copies of every kind, less the hand and the cards named gone.
Copias podemVir(const Copias& mao, const char* foram) {
    Copias livre{};
    const Copias fora = copiasDe(foram);
    for (int k = 0; k < kTipos; ++k) livre[k] = static_cast<std::uint8_t>(2 - mao[k] - fora[k]);
    return livre;
}

struct Caso {
    const char* mao;
    const char* foram; // copies known to be out of reach
    int faltam;
};

class DistanciaTest : public testing::TestWithParam<Caso> {};

TEST_P(DistanciaTest, CountsTheCardsMissing) {
    const Copias mao = copiasDe(GetParam().mao);
    EXPECT_EQ(distancia(mao, podemVir(mao, GetParam().foram), false).faltam, GetParam().faltam)
        << GetParam().mao << " / gone: " << GetParam().foram;
}

INSTANTIATE_TEST_SUITE_P(
    Maos, DistanciaTest,
    testing::Values(Caso{"7/1 7/2 7/3 1/4 2/4 3/4 12/2 13/2 1/2", "", 0}, // the wrapped run counts
                    Caso{"7/1 7/2 7/3 1/4 2/4 3/4 13/2 1/2 2/2", "", 1},  // no run past the ace
                    Caso{"7/1 7/1 7/2 1/4 2/4 3/4 5/3 6/3 8/1", "",
                         2}, // twins are one value in one suit
                    Caso{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "", 1},
                    // The four and the other seven of diamonds gone, and the spade sevens: the two
                    // diamonds can't be finished any more.
                    Caso{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "4/3 4/3 7/3 7/4 7/4", 2},
                    // Two sevens of hearts can go in two trincas, each with a seven of its own.
                    Caso{"7/1 7/1 7/2 7/3 7/4 7/2 1/4 2/4 3/4", "", 0},
                    // Ten cards: the best nine.
                    Caso{"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 7/3 13/1", "", 0},
                    Caso{"1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 4/1", "", 6}));

// The slow and sure way: every three trincas, each kind asked for as often as they use it.
int faltamLiteral(const Copias& mao, const Copias& livre) {
    std::vector<std::array<int, 3>> trincas;
    for (int a = 0; a < kTipos; ++a)
        for (int b = a + 1; b < kTipos; ++b)
            for (int c = b + 1; c < kTipos; ++c)
                if (valeGrupo(cartaDoTipo(a), cartaDoTipo(b), cartaDoTipo(c)))
                    trincas.push_back({a, b, c});
    int melhor = 0;
    const int n = static_cast<int>(trincas.size());
    for (int i = 0; i < n; ++i)
        for (int j = i; j < n; ++j)
            for (int l = j; l < n; ++l) {
                Copias pede{};
                for (int t : {i, j, l})
                    for (int k : trincas[t]) ++pede[k];
                int usadas = 0;
                bool cabe = true;
                for (int k = 0; k < kTipos && cabe; ++k) {
                    const int daMao = std::min(pede[k], mao[k]);
                    usadas += daMao;
                    cabe = pede[k] - daMao <= livre[k];
                }
                if (cabe) melhor = std::max(melhor, usadas);
            }
    return kCartasDasTrincas - melhor;
}

// Random hands of two packs with random cards gone: the search against every three trincas,
// and the kinds it calls useful against adding each kind in turn.
TEST(Distancia, AgreesWithEveryThreeTrincasOnRandomHands) {
    std::mt19937 gerador(20261123);
    for (int rodada = 0; rodada < 60; ++rodada) {
        std::vector<int> baralho;
        for (int k = 0; k < kTipos; ++k) baralho.insert(baralho.end(), {k, k});
        std::shuffle(baralho.begin(), baralho.end(), gerador);
        // Hands drawn from a few suits and values meet more trincas than a fair deal.
        const int tamanho = rodada % 2 == 0 ? 9 : 10;
        Copias mao{}, livre{};
        for (int i = 0; i < tamanho; ++i) ++mao[baralho[i]];
        for (int i = tamanho; i < static_cast<int>(baralho.size()); ++i)
            if (gerador() % 3 != 0) ++livre[baralho[i]]; // a third of the rest already seen
        const Distancia d = distancia(mao, livre, true);
        ASSERT_EQ(d.faltam, faltamLiteral(mao, livre)) << "round " << rodada;
        if (tamanho != 9) continue;
        for (int k = 0; k < kTipos; ++k) {
            if (livre[k] == 0) continue;
            Copias mais = mao, restam = livre;
            ++mais[k], --restam[k];
            const bool aproxima = distancia(mais, restam, false).faltam < d.faltam;
            ASSERT_EQ(aproxima, (d.uteis >> k & 1) != 0) << "round " << rodada << ", kind " << k;
        }
    }
}

} // namespace
} // namespace corvina

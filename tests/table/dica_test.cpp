// The hint's words: the move, how often it wins and how often the next best does, read off the
// search on the player's view.

#include <gtest/gtest.h>

#include <regex>

#include "apoio/maos.h"
#include "table/dica.h"

namespace corvina {
namespace {

using teste::cartas;

TEST(Dica, TellsTheMoveWithItsChancesAndTheNextBest) {
    const struct {
        const char* mao;
        const char* topo;
        const char* esperado; // a pattern: (\d+) are the two shares, the first not below
    } casos[] = {
        // Ten cards that win by throwing the king: no chances to tell.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 4/3 13/2", "",
         "Dica: descarte o rei de paus e vença a mão"},
        // The top finishes the hand: taking it always wins.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "4/3",
         R"(Dica: pegue o quatro de ouros do descarte \(ganha (100)% das vezes; do baralho, (\d+)%\))"},
        // A top that helps nothing: the stock.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "13/4",
         R"(Dica: pegue uma carta do baralho \(ganha (\d+)% das vezes; do descarte, (\d+)%\))"},
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "", "Dica: pegue uma carta do baralho"},
        // Two trincas, a pair and two strays: one of the strays goes.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 10/1 13/2", "",
         R"(Dica: descarte o (dez de copas|rei de paus) \(ganha (\d+)% das vezes; o (dez de copas|rei de paus), (\d+)%\))"},
    };
    for (const auto& c : casos) {
        VisaoDoNivel v;
        v.mao = cartas(c.mao);
        const auto topo = cartas(c.topo);
        if (!topo.empty()) v.topo = topo.front();
        v.descartes = cartas("4/1 8/3 11/2 12/4 2/1");
        if (v.topo) v.descartes.push_back(*v.topo);
        v.monte = 50;
        const Dica d = dicaDaVisao(v, {.ms = 1e9, .mundos = 200});
        std::smatch m;
        ASSERT_TRUE(std::regex_match(d.texto, m, std::regex(c.esperado))) << d.texto;
        // The shares: the move's, then the next best's, never above it.
        std::vector<int> partes;
        for (std::size_t i = 1; i < m.size(); ++i)
            if (std::regex_match(m[i].str(), std::regex(R"(\d+)")))
                partes.push_back(std::stoi(m[i]));
        if (partes.size() == 2) {
            EXPECT_GE(partes[0], partes[1]) << d.texto;
        }
        if (d.tipo == Dica::Tipo::Carta) {
            EXPECT_EQ(d.texto.rfind("Dica: descarte " + nomeDaCartaComArtigo(v.mao[d.casa - 1]), 0),
                      0u)
                << "the card marked is the card told";
        }
    }
}

} // namespace
} // namespace corvina

// The hint's words: Forte's move, with how often it won in the worlds the search played on the
// player's view.

#include <gtest/gtest.h>

#include <regex>

#include "apoio/maos.h"
#include "machine/forte.h"
#include "table/dica.h"

namespace corvina {
namespace {

using teste::cartas;

TEST(Dica, TellsFortesMoveWithItsChance) {
    const struct {
        const char* mao;
        const char* topo;
        const char* esperado; // a pattern
    } casos[] = {
        // Ten cards that win by throwing the king: no chances to tell.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 4/3 13/2", "",
         "Dica: descarte o rei de paus e vença a mão"},
        // The top finishes the hand: taking it always wins.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "4/3",
         R"(Dica: pegue o quatro de ouros do descarte \(ganha 100% das vezes\))"},
        // A top that helps nothing: the stock.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "13/4",
         R"(Dica: pegue uma carta do baralho \(ganha \d+% das vezes\))"},
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 11/1", "", "Dica: pegue uma carta do baralho"},
        // Two trincas, a pair and two strays: one of the strays goes.
        {"7/1 7/2 7/3 1/4 2/4 3/4 5/3 6/3 10/1 13/2", "",
         R"(Dica: descarte o (dez de copas|rei de paus) \(ganha \d+% das vezes\))"},
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
        EXPECT_TRUE(std::regex_match(d.texto, std::regex(c.esperado))) << d.texto;
        // The move is the strongest level's, on the same view.
        if (d.tipo == Dica::Tipo::Carta) {
            EXPECT_EQ(d.casa, Forte().descarte(v, false)) << d.texto;
            EXPECT_EQ(d.texto.rfind("Dica: descarte " + nomeDaCartaComArtigo(v.mao[d.casa - 1]), 0),
                      0u)
                << "the card marked is the card told";
        } else {
            EXPECT_EQ(d.tipo == Dica::Tipo::Descarte, v.topo && Forte().pegaDescarte(v)) << d.texto;
        }
    }
}

} // namespace
} // namespace corvina

#include <gtest/gtest.h>

#include "apoio/maos.h"
#include "core/ordenacao.h"

namespace corvina {
namespace {

using teste::mesaCom;
using teste::textoDaMao;

struct CasoOrdem {
    bool sobe;
    int16 alfa, pinta;
    const char* mao;
    const char* esperado;
};

class OrdenaTest : public testing::TestWithParam<CasoOrdem> {};

TEST_P(OrdenaTest, GivesTheOrderOfTheCall) {
    const auto& p = GetParam();
    Mesa mesa = mesaCom(Lado::Jog, p.mao);
    if (p.sobe)
        ordenarEX(mesa, p.alfa, p.pinta, Lado::Jog);
    else
        ordenarZtoA(mesa, p.alfa, p.pinta, Lado::Jog);
    EXPECT_EQ(textoDaMao(mesa, Lado::Jog), p.esperado);
}

constexpr const char* kCinco = "9/1 2/3 9/3 1/4 13/2";

INSTANTIATE_TEST_SUITE_P(
    Ordens, OrdenaTest,
    testing::Values(CasoOrdem{true, 2, 1, kCinco, "1/4 2/3 9/1 9/3 13/2"},
                    CasoOrdem{true, 1, 1, kCinco, "9/1 13/2 2/3 9/3 1/4"},
                    CasoOrdem{true, 1, 3, kCinco, "2/3 9/3 1/4 9/1 13/2"},
                    CasoOrdem{false, 2, 1, kCinco, "13/2 9/1 9/3 2/3 1/4"},
                    CasoOrdem{false, 1, 3, kCinco, "9/3 2/3 1/4 9/1 13/2"},
                    // pinta is clamped to 1..4
                    CasoOrdem{true, 1, 0, kCinco, "9/1 13/2 2/3 9/3 1/4"},
                    CasoOrdem{true, 1, 9, kCinco, "1/4 9/1 13/2 2/3 9/3"},
                    // both copies of a card survive a sort
                    CasoOrdem{true, 1, 2, "5/3 5/3 2/2 5/1 2/2", "2/2 2/2 5/3 5/3 5/1"},
                    // by value alone, cards of one value keep the order they came in
                    CasoOrdem{true, 2, 4, "8/4 8/1 3/2 8/3", "3/2 8/4 8/1 8/3"}));

TEST(Ordenacao, SortsAsManyCardsAsTheSideHolds) {
    Mesa mesa = mesaCom(Lado::Mac, "9/1 2/3 9/3 1/4 13/2 5/4 7/4 3/1 12/2 6/1");
    teste::poeMao(mesa, Lado::Jog, "1/1 1/1 1/1 1/1 1/1 1/1 1/1 1/1 1/1");
    ordenarEX(mesa, 1, 4, Lado::Mac);
    EXPECT_EQ(textoDaMao(mesa, Lado::Mac), "1/4 5/4 7/4 3/1 6/1 9/1 12/2 13/2 2/3 9/3");
    EXPECT_EQ(textoDaMao(mesa, Lado::Jog), "1/1 1/1 1/1 1/1 1/1 1/1 1/1 1/1 1/1");
}

TEST(Ordenacao, Ordenar2AlternatesSuitAndValueOrders) {
    Mesa mesa = mesaCom(Lado::Jog, "9/3 2/1 9/1 1/4 13/2");
    mesa.modoOrdem = 2;
    ordenar2(mesa);
    EXPECT_EQ(mesa.modoOrdem, 1);
    EXPECT_EQ(textoDaMao(mesa, Lado::Jog), "2/1 9/1 13/2 9/3 1/4");
    ordenar2(mesa);
    EXPECT_EQ(mesa.modoOrdem, 2);
    EXPECT_EQ(textoDaMao(mesa, Lado::Jog), "1/4 2/1 9/1 9/3 13/2");
    mesa.modoOrdem = 0;
    ordenar2(mesa);
    EXPECT_EQ(mesa.modoOrdem, 1);
}

} // namespace
} // namespace corvina

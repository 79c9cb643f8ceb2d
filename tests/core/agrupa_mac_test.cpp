#include <gtest/gtest.h>

#include "apoio/maos.h"
#include "core/agrupa_mac.h"

namespace corvina {
namespace {

struct CasoAgrupa {
    const char* mao;
    const char* esperado;
};

class AgrupaMacTest : public testing::TestWithParam<CasoAgrupa> {};

TEST_P(AgrupaMacTest, LaysOutTheTrincasFirst) {
    Mesa mesa = teste::mesaCom(Lado::Mac, GetParam().mao);
    teste::poeMao(mesa, Lado::Jog, "1/1 2/2 3/3 4/4 5/1 6/2 7/3 8/4 9/1 10/2");
    agrupaMaoDaMaquina(mesa);
    EXPECT_EQ(teste::textoDaMao(mesa, Lado::Mac), GetParam().esperado);
    EXPECT_EQ(teste::textoDaMao(mesa, Lado::Jog), "1/1 2/2 3/3 4/4 5/1 6/2 7/3 8/4 9/1 10/2")
        << "the player's ten cards come back untouched";
}

INSTANTIATE_TEST_SUITE_P(
    Maos, AgrupaMacTest,
    testing::Values(
        CasoAgrupa{"7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4",
                   "4/2 5/2 6/2 7/2 7/3 7/1 1/4 12/4 13/4"},
        CasoAgrupa{"13/4 1/4 7/3 6/2 12/4 5/2 7/2 4/2 7/1",
                   "4/2 5/2 6/2 7/2 7/3 7/1 1/4 12/4 13/4"},
        // below 10: the order of OrdenarMac, by value and suit within a value
        CasoAgrupa{"2/3 2/1 9/4 5/2 11/1 13/2 7/3 4/4 6/1",
                   "2/1 2/3 4/4 5/2 6/1 7/3 9/4 11/1 13/2"},
        // duplas only: by suit, value rising
        CasoAgrupa{"5/1 5/2 8/3 9/3 1/4 13/4 11/1 12/1 6/2",
                   "5/1 11/1 12/1 5/2 6/2 8/3 9/3 1/4 13/4"},
        // below 60 the list is try 16's
        CasoAgrupa{"3/1 3/2 3/3 3/4 4/4 5/4 9/1 10/2 11/3",
                   "5/4 4/4 3/4 3/1 3/2 3/3 9/1 10/2 11/3"},
        CasoAgrupa{"7/1 8/1 9/1 2/2 4/2 9/2 9/3 7/4 9/4", "9/4 9/1 9/2 7/1 8/1 2/2 4/2 9/3 7/4"},
        // twins in two trincas: both copies in front, and still the same nine cards
        CasoAgrupa{"5/1 5/2 5/3 4/2 5/2 6/2 9/3 9/4 9/1", "4/2 5/2 6/2 5/2 5/3 5/1 9/3 9/4 9/1"},
        CasoAgrupa{"13/3 11/3 12/3 11/1 11/3 11/2 10/1 12/4 1/4",
                   "13/3 12/3 11/3 11/1 11/2 11/3 10/1 1/4 12/4"}));

} // namespace
} // namespace corvina

#include <gtest/gtest.h>

#include "apoio/maos.h"
#include "core/vale.h"

namespace corvina {
namespace {

using teste::cartas;

struct CasoTrinca {
    const char* mao;
    bool trinca;
};

class ValeGrupoTest : public testing::TestWithParam<CasoTrinca> {};

TEST_P(ValeGrupoTest, JudgesEveryOrderOfTheThreeSlotsAlike) {
    const auto c = cartas(GetParam().mao);
    ASSERT_EQ(c.size(), 3u);
    const int ordens[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
    for (const auto& o : ordens)
        EXPECT_EQ(valeGrupo(c[o[0]], c[o[1]], c[o[2]]), GetParam().trinca)
            << GetParam().mao << " in order " << o[0] << o[1] << o[2];
}

INSTANTIATE_TEST_SUITE_P(
    Trincas, ValeGrupoTest,
    testing::Values(CasoTrinca{"7/1 7/2 7/3", true}, CasoTrinca{"7/1 7/1 7/2", false}, // twins
                    CasoTrinca{"7/1 7/2 7/2", false}, CasoTrinca{"1/2 2/2 3/2", true},
                    CasoTrinca{"11/4 12/4 13/4", true},
                    CasoTrinca{"12/3 13/3 1/3", true}, // ace above king
                    CasoTrinca{"13/3 1/3 2/3", false}, // no wrap further
                    CasoTrinca{"5/1 6/1 7/2", false},  // two suits
                    CasoTrinca{"5/1 5/1 6/1", false}, CasoTrinca{"5/1 7/1 9/1", false},
                    CasoTrinca{"4/4 5/4 5/4", false}, CasoTrinca{"9/1 9/2 10/2", false}));

struct CasoPar {
    const char* par; // carta1 carta2, in this order
    bool dupla;
    bool separada;
};

class ParesTest : public testing::TestWithParam<CasoPar> {};

TEST_P(ParesTest, DuplaAndDuplaSeparadaInThisOrderOfSlots) {
    const auto c = cartas(GetParam().par);
    ASSERT_EQ(c.size(), 2u);
    EXPECT_EQ(valeDupla(c[0], c[1]), GetParam().dupla) << GetParam().par;
    EXPECT_EQ(valeDupla(c[1], c[0]), GetParam().dupla) << GetParam().par << " reversed";
    EXPECT_EQ(valeDuplaSeparada(c[0], c[1]), GetParam().separada) << GetParam().par;
}

INSTANTIATE_TEST_SUITE_P(
    Pares, ParesTest,
    testing::Values(CasoPar{"8/1 8/3", true, false},  // one value, two suits
                    CasoPar{"8/1 8/1", false, false}, // twins are nothing
                    CasoPar{"13/2 1/2", true, false}, CasoPar{"1/2 13/2", true, false},
                    CasoPar{"1/2 2/2", true, false}, CasoPar{"12/2 13/2", true, false},
                    CasoPar{"5/1 6/2", false, false}, // neighbours in two suits
                    CasoPar{"4/3 6/3", false, true}, CasoPar{"6/3 4/3", false, true},
                    CasoPar{"13/4 2/4", false, true}, CasoPar{"2/4 13/4", false, false},
                    CasoPar{"1/4 12/4", false, true}, CasoPar{"12/4 1/4", false, false},
                    CasoPar{"13/4 11/4", false, true}, CasoPar{"1/4 3/4", false, true},
                    CasoPar{"3/4 1/4", false, true}, CasoPar{"4/1 6/2", false, false}));

TEST(ValeNaMesa, ReadsTheSlotsOfTheSideNamed) {
    Mesa mesa = teste::mesaCom(Lado::Jog, "7/1 7/2 7/3");
    teste::poeMao(mesa, Lado::Mac, "7/1 8/2 9/3");
    EXPECT_TRUE(ValeGrupo(mesa, 1, 2, 3, Lado::Jog));
    EXPECT_FALSE(ValeGrupo(mesa, 1, 2, 3, Lado::Mac));
    EXPECT_TRUE(ValeDupla(mesa, 1, 2, Lado::Jog));
    EXPECT_FALSE(ValeDupla(mesa, 1, 2, Lado::Mac));
}

} // namespace
} // namespace corvina

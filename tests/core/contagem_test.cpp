#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "apoio/maos.h"
#include "core/contagem.h"

namespace corvina {
namespace {

using teste::mesaCom;
using teste::textoDaMao;
using teste::textoDosGrupos;

using Contagem = int16 (*)(Mesa&, Lado, bool);

struct CasoContagem {
    const char* mao;
    int16 cheia;        // fifteen tries
    int16 curta;        // seven tries; -1 where the case says nothing of it
    const char* grupos; // list left by the full count; nullptr where the case says nothing
};

const CasoContagem kCasos[] = {
    // 60 at try 2: the loop stops there, and the list is that try's
    {"7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4", 60, 60, "4/2 5/2 6/2 7/2 7/3 7/1 1/4 12/4 13/4"},
    // three runs of one suit that no order finds together: no win
    {"1/2 2/2 3/2 4/2 9/2 10/2 11/2 12/2 13/2", 43, 43, nullptr},
    // the greedy 3s spoil the run 3-4-5; the list is try 16's, not the best try's
    {"3/1 3/2 3/3 3/4 4/4 5/4 9/1 10/2 11/3", 40, 40, "5/4 4/4 3/4 3/1 3/2 3/3"},
    // 60 only at try 9, which the short count never reaches
    {"13/1 13/2 12/1 2/1 3/1 4/1 13/4 1/1 13/3", 60, 43,
     "13/1 12/1 1/1 4/1 3/1 2/1 13/2 13/3 13/4"},
    {"5/1 5/2 7/3 8/3 2/4 4/4 10/1 12/2 13/3", 7, 7, ""},
    // 13 before 2 only in falling orders; 1 before 12 only in rising ones
    {"13/1 2/1 5/2 9/3 6/4 8/1 10/2 12/3 3/4", 1, 0, ""},
    {"1/1 12/1 5/2 9/3 6/4 8/1 10/2 13/3 3/4", 1, 1, ""},
    // the untried order (suits 1..4, value rising) would give 7
    {"2/1 5/1 11/1 5/3 1/4 2/4 6/4 9/4 12/4", 6, -1, ""},
    {"1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1", 0, 0, ""},
    {"4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", 43, 43, nullptr},
    {"13/1 13/2 2/1 3/1 4/1 13/4 1/1 13/3 7/2", 43, 40, nullptr},
    // two trincas at best, but try 16 takes only the 9s
    {"7/1 8/1 9/1 2/2 4/2 9/2 9/3 7/4 9/4", 41, -1, "9/4 9/1 9/2"},
    // ten cards: three trincas and a loose card
    {"7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4 9/3", 60, 60, "4/2 5/2 6/2 7/2 7/3 7/1 1/4 12/4 13/4"},
};

class ContagemTest : public testing::TestWithParam<std::tuple<Contagem, CasoContagem>> {};

TEST_P(ContagemTest, FullCountShortCountAndGroupList) {
    const auto [conta, caso] = GetParam();
    Mesa mesa = mesaCom(Lado::Jog, caso.mao);
    EXPECT_EQ(conta(mesa, Lado::Jog, false), caso.cheia) << caso.mao;
    if (caso.grupos) {
        EXPECT_EQ(textoDosGrupos(mesa), caso.grupos) << caso.mao;
    }
    EXPECT_EQ(textoDaMao(mesa, Lado::Jog), caso.mao) << "the hand must come back as it was";
    if (caso.curta >= 0) {
        EXPECT_EQ(conta(mesa, Lado::Jog, true), caso.curta) << caso.mao;
    }
}

TEST_P(ContagemTest, MachineSideCountsAlikeAndLeavesNoGroupList) {
    const auto [conta, caso] = GetParam();
    Mesa mesa = mesaCom(Lado::Mac, caso.mao);
    mesa.qtdGrupo = 5;
    EXPECT_EQ(conta(mesa, Lado::Mac, false), caso.cheia);
    EXPECT_EQ(mesa.qtdGrupo, 0);
    EXPECT_EQ(textoDaMao(mesa, Lado::Mac), caso.mao);
}

TEST_P(ContagemTest, AnyOrderOfTheSlotsCountsTheSame) {
    const auto [conta, caso] = GetParam();
    auto lista = teste::cartas(caso.mao);
    std::mt19937 gerador(7);
    for (int vez = 0; vez < 20; ++vez) {
        std::shuffle(lista.begin(), lista.end(), gerador);
        Mesa mesa = mesaCom(Lado::Jog, escreveCartas(lista));
        EXPECT_EQ(conta(mesa, Lado::Jog, false), caso.cheia) << escreveCartas(lista);
    }
}

INSTANTIATE_TEST_SUITE_P(RapidaELiteral, ContagemTest,
                         testing::Combine(testing::Values(&TemQuantosGrupos,
                                                          &TemQuantosGruposLiteral),
                                          testing::ValuesIn(kCasos)),
                         [](const testing::TestParamInfo<ContagemTest::ParamType>& info) {
                             const bool rapida = std::get<0>(info.param) == &TemQuantosGrupos;
                             return std::string(rapida ? "Rapida_" : "Literal_") +
                                    std::to_string(info.index);
                         });

} // namespace
} // namespace corvina

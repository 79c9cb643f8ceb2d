#include <gtest/gtest.h>

#include "apoio/jogo_de_teste.h"
#include "core/ajustes.h"
#include "table/ordenar.h"

namespace corvina {
namespace {

using teste::JogoDeTeste;
using teste::textoDaMao;

constexpr const char* kMac = "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1";

struct CasoOrdenar {
    const char* mao;
    int16 ordemAntes;
    const char* maoDepois;
    int16 ordemDepois;
    const char* legenda;
};

class OrdenarTest : public testing::TestWithParam<CasoOrdenar> {};

TEST_P(OrdenarTest, NextOrderWithTheTrincasInFront) {
    const CasoOrdenar& c = GetParam();
    JogoDeTeste t;
    t.arma(c.mao, kMac);
    t.jogo.modulo.assistido = 1;
    t.jogo.modulo.avisoOrdenar = true;
    t.jogo.mesa.ordemAuto = c.ordemAntes;
    Label4_Click(t.jogo);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), c.maoDepois);
    EXPECT_EQ(t.jogo.mesa.ordemAuto, c.ordemDepois);
    EXPECT_TRUE(t.chamou(std::string("legendaOrdenar ") + c.legenda));
}

INSTANTIATE_TEST_SUITE_P(
    Ordens, OrdenarTest,
    testing::Values(
        // no trinca: order 1, by value
        CasoOrdenar{"9/1 2/3 9/3 1/4 13/2 5/1 6/2 7/3 8/4", 0,
                    "1/4 2/3 5/1 6/2 7/3 8/4 9/1 9/3 13/2", 1, "Auto 1"},
        // order 4 wraps to 1
        CasoOrdenar{"9/1 2/3 9/3 1/4 13/2 5/1 6/2 7/3 8/4", 4,
                    "1/4 2/3 5/1 6/2 7/3 8/4 9/1 9/3 13/2", 1, "Auto 1"},
        // order 2, by suit from diamonds: the trinca of 7s is found and put in front
        CasoOrdenar{"7/1 2/2 7/2 9/4 7/3 11/1 3/4 12/2 5/3", 1,
                    "7/3 7/1 7/2 5/3 3/4 9/4 11/1 2/2 12/2", 2, "Auto 2"}));

TEST(Ordenar, OutsideAssistedModeOnlyExplains) {
    JogoDeTeste t;
    t.arma("9/1 2/3 9/3 1/4 13/2 5/1 6/2 7/3 8/4", kMac);
    t.jogo.modulo.assistido = 0;
    Label4_Click(t.jogo);
    ASSERT_EQ(t.vista.chamadasDe("caixaMensagem").size(), 1u);
    EXPECT_NE(t.vista.chamadas[0].find("somente no 'Modo assistido'"), std::string::npos);
    EXPECT_EQ(t.vista.chamadas.size(), 1u);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), "9/1 2/3 9/3 1/4 13/2 5/1 6/2 7/3 8/4");
}

TEST(Ordenar, TheHintComesOnceAndIsStored) {
    JogoDeTeste t;
    t.arma("9/1 2/3 9/3 1/4 13/2 5/1 6/2 7/3 8/4", kMac);
    t.jogo.modulo.assistido = 1;
    Label4_Click(t.jogo);
    EXPECT_EQ(t.vista.chamadasDe("caixaMensagem Você pode também").size(), 1u);
    EXPECT_LT(t.ordem("apresentacartasdojog 1 9"), t.ordem("gravaAjuste AvisoOrdenar True"));
    EXPECT_EQ(t.vista.armazem.le(chaveBase(), "AvisoOrdenar", ""), "True");
    Label4_Click(t.jogo);
    EXPECT_EQ(t.vista.chamadasDe("caixaMensagem Você pode também").size(), 1u);
}

TEST(Ordenar, GivesUpWhenTwoOrdersHideATrinca) {
    // Two trincas, but orders 1 and 2 take the 3 of spades into the 3s and lose the run.
    JogoDeTeste t;
    const char* mao = "3/4 3/1 3/2 3/3 4/4 5/4 9/1 10/2 11/3";
    t.arma(mao, kMac);
    t.jogo.modulo.assistido = 1;
    t.jogo.modulo.avisoOrdenar = false;
    Label4_Click(t.jogo);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), mao) << "the hand goes back as it was";
    EXPECT_EQ(t.jogo.mesa.ordemAuto, 0);
    EXPECT_TRUE(t.chamou("legendaOrdenar Auto"));
    EXPECT_TRUE(t.vista.chamadasDe("caixaMensagem").empty())
        << "a press that gives up shows no hint";
}

// Three trincas in nine cards win the hand at once; with a drawn card in hand they are shown,
// and only a discard can win.
TEST(Ordenar, ThreeTrincasWinOnlyWithNineCards) {
    for (const char* mao :
         {"13/4 1/4 7/3 6/2 12/4 5/2 7/2 4/2 7/1", "13/4 1/4 7/3 6/2 12/4 5/2 7/2 4/2 7/1 9/3"}) {
        JogoDeTeste t;
        t.arma(mao, kMac);
        t.jogo.modulo.assistido = 1;
        t.jogo.modulo.avisoOrdenar = true;
        const bool nove = t.jogo.mesa.qtdJog == 9;
        Label4_Click(t.jogo);
        EXPECT_TRUE(t.chamou("mostraTrincas 3 trincas")) << mao;
        EXPECT_EQ(t.jogo.modulo.pontosJog, nove ? 1 : 0) << mao;
        EXPECT_EQ(t.chamou("abreJanela FrmPlacar"), nove) << mao;
    }
}

} // namespace
} // namespace corvina

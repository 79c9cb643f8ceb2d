// The player's draws and discard, the end of a hand and the first activation, through a
// table that draws nothing.

#include <gtest/gtest.h>

#include "apoio/baralho_roteiro.h"
#include "apoio/jogo_de_teste.h"
#include "core/ajustes.h"
#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/finaliza.h"
#include "core/novojogo.h"
#include "core/verifica_c.h"
#include "machine/classico.h"

namespace corvina {
namespace {

using teste::JogoDeTeste;
using teste::textoDaMao;

constexpr const char* kJog = "2/2 4/3 6/4 8/1 10/2 12/3 1/4 3/1 5/2";
constexpr const char* kMac = "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1";
const std::string kRecusa =
    "caixaMensagem Você agora deve descartar uma de suas cartas, OK?   |64|Movimento não permitido";

TEST(CompraDoBaralho, TakesTheHighEndOfTheStockToSlotTen) {
    JogoDeTeste t;
    t.arma(kJog, kMac, "9/4", "1/3 2/3 13/1");
    t.jogo.mesa.ordemAuto = 3;
    ateOFim(costas2_Click(t.jogo));
    EXPECT_EQ(t.jogo.mesa.qtdJog, 10);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), std::string(kJog) + " 13/1");
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, 2);
    EXPECT_EQ(t.jogo.mesa.ordemAuto, 0);
    EXPECT_TRUE(t.chamou("legendaOrdenar Auto"));
    EXPECT_TRUE(t.chamou("voaCarta discartado2 2.5"));
    EXPECT_TRUE(t.chamou("mostraPrompt Agora descarte uma de suas cartas"));
    EXPECT_EQ(t.vista.chamadas.back(), "mostraTrincas ") << "the count of the ten cards comes last";
    EXPECT_FALSE(t.jogo.mesa.animando);
}

// With ten cards in hand a second take, from either place, is refused and changes nothing.
TEST(Compra, ASecondTakeIsRefusedAndChangesNothing) {
    for (const bool doDescarte : {false, true}) {
        JogoDeTeste t;
        t.arma(std::string(kJog) + " 13/1", kMac, "9/4", "1/3 2/3");
        t.jogo.modulo.tocarSom = true;
        ateOFim(doDescarte ? Discartado_Click(t.jogo) : costas2_Click(t.jogo));
        EXPECT_TRUE(t.chamou(kRecusa)) << doDescarte;
        EXPECT_EQ(t.jogo.mesa.qtdBaralho, 2);
        EXPECT_EQ(t.jogo.mesa.qtdJog, 10);
        EXPECT_EQ(t.jogo.modulo.qtdDescarte, 1);
        EXPECT_TRUE(t.vista.chamadasDe("tocaSom").empty());
        EXPECT_EQ(t.vista.chamadas.back(),
                  doDescarte ? "habilitaPeca Discartado 1" : "habilitaPeca costas2 1");
    }
}

TEST(CompraDoBaralho, EmptyStockSoundsThenEndsTheHandWithNoPoint) {
    JogoDeTeste t;
    t.arma(kJog, kMac, "9/4", "");
    t.jogo.modulo.tocarSom = true;
    t.jogo.modulo.pontosMac = 2;
    ateOFim(costas2_Click(t.jogo));
    const long som = t.ordem("tocaSom \\cart1.wav 0");
    const long caixa = t.ordem("caixaMensagem Acabou o Baralho.|0|");
    ASSERT_GE(som, 0);
    EXPECT_GT(caixa, som);
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, kCartasNoMonte);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 2);
    EXPECT_EQ(t.jogo.modulo.pontosJog, 0);
}

TEST(CompraDoDescarte, EmptyPileDoesNothingButSwitchItselfOff) {
    JogoDeTeste t;
    t.arma(kJog, kMac, "", "1/3");
    t.jogo.modulo.qtdDescarte = 0;
    ateOFim(Discartado_Click(t.jogo));
    EXPECT_EQ(t.vista.chamadas,
              (std::vector<std::string>{"habilitaPeca Discartado 0", "escondeAviso"}));
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
}

TEST(CompraDoDescarte, TakesTheTopAndCapsThePileAtFour) {
    JogoDeTeste t;
    t.arma(kJog, kMac, "9/4", "1/3");
    t.jogo.modulo.qtdDescarte = 7;
    ateOFim(Discartado_Click(t.jogo));
    EXPECT_EQ(t.jogo.modulo.qtdDescarte, 4);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), std::string(kJog) + " 9/4");
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, 1);
    EXPECT_TRUE(t.chamou("voaCarta discartado2 1.5"));
    EXPECT_LT(t.ordem("MostraDiscarts"), t.ordem("voaCarta discartado2 1.5"));
}

TEST(Descarte, RefusedWithoutTenCardsOrOutsideTheHand) {
    JogoDeTeste t;
    t.arma(kJog, kMac, "9/4", "1/3");
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 3)), Descarte::Recusado);
    t.arma(std::string(kJog) + " 13/1", kMac, "9/4", "1/3");
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 0)), Descarte::Recusado);
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 11)), Descarte::Recusado);
    EXPECT_TRUE(t.vista.chamadas.empty());
}

TEST(Descarte, NothingReachesTheHandsWhileADiscardIsUnderWay) {
    JogoDeTeste t;
    t.arma(std::string(kJog) + " 13/1", kMac, "9/4", "1/3 8/3");
    std::vector<Descarte> dentro;
    int compras = 0;
    t.vista.aCadaChamada = [&] {
        if (t.vista.chamadas.empty() || t.vista.chamadas.back() != "destaca 0") return;
        dentro.push_back(ateOFim(descartaJog(t.jogo, 2))); // as if a click got in during the flight
        const int16 monte = t.jogo.mesa.qtdBaralho;
        ateOFim(costas2_Click(t.jogo));
        ateOFim(Discartado_Click(t.jogo));
        compras += t.jogo.mesa.qtdBaralho != monte;
    };
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 1)), Descarte::Feito);
    EXPECT_EQ(dentro, std::vector<Descarte>{Descarte::Recusado});
    EXPECT_EQ(compras, 0);
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
}

TEST(Descarte, ClosesTheGapThenTheMachinePlays) {
    JogoDeTeste t;
    t.arma(std::string(kJog) + " 13/1", kMac, "9/4", "1/3 8/3");
    t.jogo.modulo.qtdDescarte = 1;
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 1)), Descarte::Feito);
    // 2/2 went to the pile; the machine took it beside its 3/2 and threw its 1/1
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), "4/3 6/4 8/1 10/2 12/3 1/4 3/1 5/2 13/1");
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Mac), "3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1 2/2");
    EXPECT_EQ(t.topo(), "1/1");
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, 2);
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
    EXPECT_EQ(t.jogo.mesa.qtdMac, 9);
    EXPECT_TRUE(t.chamou("mostraPrompt Aguarde a maquina jogar"));
    // The pictures of the flight and of the new top are cut to the card's outline.
    EXPECT_TRUE(t.chamou("aplicaContorno discartado2"));
    EXPECT_TRUE(t.chamou("aplicaContorno Discartado"));
    EXPECT_FALSE(t.jogo.maosEmJogo);
    EXPECT_EQ(t.vista.chamadas.back(), "ponteiro Picmover 12");
}

struct CasoPerda {
    const char* dez;
    int16 posicao;
    bool erro;
};

class PerdaNoDescarteTest : public testing::TestWithParam<CasoPerda> {};

TEST_P(PerdaNoDescarteTest, SoundsTheErrorOnlyBeyondFourPoints) {
    JogoDeTeste t;
    t.arma(GetParam().dez, kMac, "9/4", "1/3 8/3");
    t.jogo.modulo.tocarSom = true;
    ateOFim(descartaJog(t.jogo, GetParam().posicao));
    EXPECT_EQ(t.chamou("tocaSom \\erro.wav 1"), GetParam().erro);
}

INSTANTIATE_TEST_SUITE_P(
    Perdas, PerdaNoDescarteTest,
    testing::Values(CasoPerda{"7/1 7/2 7/3 2/2 11/4 4/3 9/2 1/1 6/4 12/3", 1, true},   // 20 to 3
                    CasoPerda{"7/1 7/2 2/2 11/4 4/3 9/2 1/1 6/4 12/3 13/3", 1, false}, // 3 to 0
                    CasoPerda{"7/1 7/2 7/3 2/2 11/4 4/3 9/2 1/1 6/4 12/3", 4, false}));

TEST(Descarte, SixtyWinsBeforeTheMachinePlays) {
    JogoDeTeste t;
    // The machine's hand counts 60 too, but the player's hand is judged first.
    t.arma("7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4 9/3", "8/1 8/2 8/3 1/3 2/3 3/3 10/4 11/4 12/4",
           "9/4", "1/3 8/3");
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 10)), Descarte::MaoTerminou);
    EXPECT_EQ(t.jogo.modulo.pontosJog, 1);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 0);
    EXPECT_FALSE(t.chamou("mostraPrompt Aguarde a maquina jogar"));
    EXPECT_LT(t.ordem("mostraTrincas 3 trincas"), t.ordem("abreJanela FrmPlacar"));
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, kCartasNoMonte) << "the next hand is dealt at once";
}

TEST(Descarte, MachineWinsAfterItsTurn) {
    JogoDeTeste t;
    t.arma(std::string(kJog) + " 13/1", "4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", "9/4", "1/3");
    t.jogo.mesa.jogValor[1] = 13; // the player throws the 13 of spades the machine wants
    t.jogo.mesa.jogNaipe[1] = 4;
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 1)), Descarte::MaoTerminou);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 1);
    EXPECT_TRUE(t.chamou("preparaPlacar Vencedor desta mão:  CPU|0|1|0"));
    EXPECT_TRUE(t.chamou("mostraContagens - 60"));
}

TEST(Descarte, MachineWinsWithTheLastCardOfTheStock) {
    JogoDeTeste t;
    t.arma(std::string(kJog) + " 13/1", "4/1 4/2 4/3 8/1 8/2 8/3 11/4 12/4 6/2", "9/4", "13/4");
    EXPECT_EQ(ateOFim(descartaJog(t.jogo, 1)), Descarte::MaoTerminou);
    EXPECT_TRUE(t.chamou("mostraPeca costas 0")) << "the last card left the stock";
    EXPECT_FALSE(t.chamou("caixaMensagem Acabou o Baralho|0|")) << "a win, not a spent stock";
    EXPECT_EQ(t.jogo.modulo.pontosMac, 1);
    EXPECT_TRUE(t.chamou("preparaPlacar Vencedor desta mão:  CPU|0|1|0"));
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, kCartasNoMonte) << "the next hand is dealt";
}

struct CasoFim {
    Lado quem;
    int16 pontosJog, pontosMac;
    bool som;
    const char* placar;
    bool pisca;
    const char* somEsperado;
};

class FinalizaTest : public testing::TestWithParam<CasoFim> {};

TEST_P(FinalizaTest, HeadlineScoreAndBlink) {
    const CasoFim& c = GetParam();
    JogoDeTeste t;
    t.arma(kJog, kMac);
    t.jogo.modulo.pontosJog = c.pontosJog;
    t.jogo.modulo.pontosMac = c.pontosMac;
    t.jogo.modulo.tocarSom = c.som;
    finaliza(t.jogo, c.quem);
    EXPECT_TRUE(t.chamou(std::string("preparaPlacar ") + c.placar + "|" + (c.pisca ? "1" : "0")));
    EXPECT_EQ(t.vista.chamadasDe("tocaSom").size(), c.somEsperado ? 1u : 0u);
    if (c.somEsperado) {
        EXPECT_TRUE(t.chamou(std::string("tocaSom ") + c.somEsperado + " 0"));
    }
    const bool fimDePartida = t.chamou("abreJanela FrmNome");
    EXPECT_EQ(fimDePartida, c.pisca || (!c.som && (c.pontosJog == 3 || c.pontosMac == 3)));
    EXPECT_LT(t.ordem("apresentacartasdamac 11 0"), t.ordem("abreJanela FrmPlacar"));
    EXPECT_EQ(t.vista.chamadas.back(), "mostraMesa");
}

INSTANTIATE_TEST_SUITE_P(
    Fins, FinalizaTest,
    testing::Values(
        CasoFim{Lado::Jog, 0, 0, true, "Vencedor desta mão:  Ana|1|0", false, nullptr},
        CasoFim{Lado::Mac, 2, 1, true, "Vencedor desta mão:  CPU|2|2", false, nullptr},
        CasoFim{Lado::Jog, 3, 3, true, "Parabéns, você foi o vencedor|4|3", true, "\\valeu.wav"},
        CasoFim{Lado::Mac, 0, 3, true, "Você perdeu esta.|0|4", true, "\\finalc.wav"},
        // with sounds off the won match doesn't blink
        CasoFim{Lado::Jog, 3, 0, false, "Parabéns, você foi o vencedor|4|0", false, nullptr}));

TEST(Finaliza, MatchWonAndLostWriteTheRecord) {
    JogoDeTeste t;
    t.arma(kJog, kMac);
    t.jogo.modulo.pontosMac = 3;
    finaliza(t.jogo, Lado::Mac);
    const std::string chave = chaveJogador("Ana");
    EXPECT_EQ(t.vista.armazem.le(chave, "Derrotas", ""), "1");
    EXPECT_EQ(t.vista.armazem.le(chave, "Saldo", ""), "-1");
    EXPECT_EQ(t.jogo.modulo.pontosJog, 0);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 0);

    t.vista.armazem.grava(chave, "Vitorias", "7 wins"); // the number at the start counts
    t.jogo.modulo.pontosJog = 3;
    finaliza(t.jogo, Lado::Jog);
    EXPECT_EQ(t.vista.armazem.le(chave, "Vitorias", ""), "8");
    EXPECT_EQ(t.vista.armazem.le(chave, "Saldo", ""), "0");
    EXPECT_EQ(t.vista.armazem.le(chave, "Derrotas", ""), "1");
}

TEST(NovoJogo, DealtThreeTrincasWinAtOnceAndOnlyForThePlayer) {
    // Both hands dealt with three trincas: equal, so no exchange; the player's alone is judged.
    teste::AcasoRoteiro acaso(teste::baralhoCom("7/1 7/2 7/3 4/2 5/2 6/2 12/4 13/4 1/4 "
                                                "8/1 8/2 8/3 1/3 2/3 3/3 10/4 11/4 12/4"));
    VistaNula vista;
    vista.registra = true;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    novojogo(jogo);
    EXPECT_EQ(jogo.modulo.pontosJog, 1);
    EXPECT_EQ(jogo.modulo.pontosMac, 0);
    EXPECT_EQ(vista.chamadasDe("abreJanela FrmPlacar").size(), 1u);
    EXPECT_EQ(vista.chamadasDe("mostraContagens").size(), 2u) << "a second hand was dealt";
}

TEST(NovoJogo, ClearsHintPileAndSortOrderButNotTheScore) {
    JogoDeTeste t;
    t.jogo.mesa.macete = true;
    t.jogo.modulo.qtdDescarte = 6;
    t.jogo.modulo.pontosJog = 2;
    t.jogo.mesa.ordemAuto = 1; // the sort button pressed before this deal
    novojogo(t.jogo);
    EXPECT_EQ(t.jogo.mesa.ordemAuto, 0);
    EXPECT_TRUE(t.chamou("legendaOrdenar Auto"));
    EXPECT_FALSE(t.jogo.mesa.macete);
    EXPECT_EQ(t.jogo.modulo.qtdDescarte, 0);
    EXPECT_EQ(t.jogo.modulo.pontosJog, 2);
    EXPECT_FALSE(t.chamou("mostraPlacar 0 0"));
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
}

TEST(LegendaTrincas, ThresholdsOfTheCount) {
    const std::pair<int16, const char*> casos[] = {
        {60, "3 trincas"}, {61, "3 trincas"}, {59, "2 trincas"}, {40, "2 trincas"},
        {39, "1 trinca"},  {20, "1 trinca"},  {19, ""},          {0, ""}};
    for (const auto& [valor, texto] : casos) EXPECT_EQ(legendaTrincas(valor), texto) << valor;
}

TEST(FormActivate, OptionsOnTheFirstRunOnlyThenThePlayerAndTheFirstHand) {
    JogoDeTeste t;
    Form_Activate(t.jogo);
    EXPECT_LT(t.ordem("abreJanela FrmOpc"), t.ordem("abreJanela FrmNome"));
    EXPECT_GE(t.ordem("abreJanela FrmOpc"), 0);
    EXPECT_EQ(t.vista.armazem.le(chaveBase(), "we", ""), "1");
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);

    t.vista.chamadas.clear();
    Form_Activate(t.jogo);
    EXPECT_EQ(t.vista.chamadas, std::vector<std::string>{"processaEventos"});

    JogoDeTeste outra;
    outra.vista.armazem.grava(chaveBase(), "WE", "1");
    Form_Activate(outra.jogo);
    EXPECT_FALSE(outra.chamou("abreJanela FrmOpc"));
    EXPECT_TRUE(outra.chamou("abreJanela FrmNome"));
}

TEST(VerificaC, EveryCardOfTheListMustStandInTheHand) {
    Mesa mesa = teste::mesaCom(Lado::Jog, "5/1 5/1 7/2");
    Mesa lista = teste::mesaCom(Lado::Jog, "7/2 5/1 5/1");
    EXPECT_TRUE(VerificaC(mesa, lista.jogNaipe, lista.jogValor));
    lista = teste::mesaCom(Lado::Jog, "7/2 5/1 5/2");
    EXPECT_FALSE(VerificaC(mesa, lista.jogNaipe, lista.jogValor));
}

} // namespace
} // namespace corvina

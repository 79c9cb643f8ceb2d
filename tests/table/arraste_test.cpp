// The drag's rules: where a drop lands, the shift of the row, the flight's steps and the pile's
// fan. The mover over a card, a drop that discards and a move during a
// flight are checked under mixed input on the real window (shell/mistura_test.cpp).

#include <gtest/gtest.h>

#include "apoio/mesa_de_cena.h"
#include "table/arraste.h"

namespace corvina {
namespace {

using teste::MesaDeCena;
using teste::textoDaMao;

constexpr const char* kNove = "2/2 4/3 6/4 8/1 10/2 12/3 1/4 3/1 5/2";
constexpr const char* kMac = "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1";
constexpr Peca kMover{Parte::Picmover};

TEST(FaixaDaMao, ThresholdsOfADrop) {
    struct Caso {
        int16 atual, origem, qtd;
        float top;
        bool fica;
    };
    const Caso casos[] = {
        {5, 5, 10, 4950, true}, {5, 5, 10, 4949, false}, // unchanged slot: home only at rest
        {2, 5, 10, 3843, true}, {2, 5, 10, 3842, false}, // moved: the band starts at 3842.31
        {5, 5, 9, 4950, false}, {5, 5, 9, 100, false},   // nine cards, unmoved: refused
        {2, 5, 9, 3843, true},  {2, 5, 9, 3000, false},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(ficaNaMao(c.atual, c.origem, c.qtd, c.top, 1440, 4950), c.fica)
            << c.atual << " " << c.origem << " " << c.qtd << " " << c.top;
    EXPECT_TRUE(naFaixaDaMao(3842.31f, 1440, 4950));
    EXPECT_FALSE(naFaixaDaMao(3842.3f, 1440, 4950));
}

// Lays the mover on a card and presses on it, grabbing it at (10, 10).
void pega(MesaDeCena& t, int16 casa) {
    cj_MouseMove(t.jogo, t.vista, casa);
    Picmover_MouseDown(t.vista, kBotaoEsquerdo, 10, 10);
}

// Moves the mover by (dx, dy) twips from where it stands, as the mouse inside it would.
void arrasta(MesaDeCena& t, float dx, float dy) {
    Picmover_MouseMove(t.jogo, t.vista, kBotaoEsquerdo, 10 + dx, 10 + dy);
}

TEST(Arraste, DraggingLeftShiftsTheCardsBetween) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    pega(t, 5);
    // From 4575 to 700: past a fifth of a card into slot 2, which stands at 1335.
    arrasta(t, -3875, 0);
    EXPECT_EQ(t.vista.cena().gesto.cartaAtual, 2);
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), "2/2 10/2 4/3 6/4 8/1 12/3 1/4 3/1 5/2");
    EXPECT_FALSE(t.sprite({Parte::cj, 2}).Visible) << "the hole is hidden";
    EXPECT_TRUE(t.sprite({Parte::cj, 5}).Visible);
    EXPECT_EQ(t.vista.cena().gesto.xOrigem, 255 + 1080);
    ateOFim(Picmover_MouseUp(t.jogo, t.vista, kBotaoEsquerdo));
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), "2/2 10/2 4/3 6/4 8/1 12/3 1/4 3/1 5/2");
    EXPECT_TRUE(t.vista.mensagens.empty());
    EXPECT_TRUE(t.sprite({Parte::cj, 2}).Visible);
    EXPECT_FALSE(t.sprite(kMover).Visible);
}

TEST(Arraste, AboveTheBandTheRowRests) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    pega(t, 5);
    arrasta(t, -3875, -2000);
    EXPECT_EQ(t.vista.cena().gesto.cartaAtual, 5);
    arrasta(t, 0, 2000); // back into the band: the shift happens where the sprite is now
    EXPECT_EQ(t.vista.cena().gesto.cartaAtual, 2);
}

TEST(Arraste, WithNineCardsADropAboveIsRefusedWithTheWarning) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    t.jogo.modulo.tocarSom = true;
    pega(t, 3);
    arrasta(t, 0, -3000);
    ateOFim(Picmover_MouseUp(t.jogo, t.vista, kBotaoEsquerdo));
    EXPECT_EQ(t.vista.sons, std::vector<std::string>{"\\denied2.wav"});
    EXPECT_TRUE(t.vista.cena().textos.avisoVisivel);
    EXPECT_EQ(t.vista.cena().textos.aviso,
              "Antes você deve pegar uma carta no baralho ou no descarte");
    EXPECT_EQ(textoDaMao(t.jogo.mesa, Lado::Jog), kNove);
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
    pega(t, 3);
    EXPECT_FALSE(t.vista.cena().textos.avisoVisivel) << "the next press hides the warning";
}

TEST(Voo, StepsFollowTheSpeedAndRoundDown) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    Sprite& s = t.sprite({Parte::discartado2});
    s.Left = 1000;
    s.Top = 1000;
    t.jogo.modulo.velocidade = 6;
    ateOFim(t.vista.voaCarta({Parte::discartado2}, 1100, 1000, 2.5)); // 15 steps to the right
    EXPECT_EQ(t.vista.esperas, 15);
    EXPECT_EQ(s.Left, 1105) << "steps of -7 overshoot: Int rounds down below 0";
    t.jogo.modulo.velocidade = 1;
    t.vista.esperas = 0;
    ateOFim(t.vista.voaCarta({Parte::discartado2}, 0, 0, 1.5));
    EXPECT_EQ(t.vista.esperas, 1);
    t.jogo.modulo.velocidade = 0;
    ateOFim(t.vista.voaCarta({Parte::discartado2}, 0, 0, 1.5));
    EXPECT_EQ(t.vista.esperas, 1) << "no speed, no steps, and no division by zero";
}

TEST(Pilha, TheFanTakesEachNewTopAndThePictureThatLayUnderIt) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    const auto figura = [&](int i) {
        return t.sprite({Parte::Picture8, static_cast<int16>(i)}).Picture;
    };
    // Successive discards: each top lands at the fan's next place, the last place once full.
    const struct {
        int16 n;
        Figura topo, antes;
        std::vector<Figura> leque; // Picture8(0..4) after the call
    } passos[] = {
        {1, 11, 0, {11, 0, 0, 0, 0}},     {2, 12, 11, {11, 12, 0, 0, 0}},
        {3, 13, 12, {11, 12, 13, 0, 0}},  {5, 15, 14, {11, 12, 13, 0, 15}},
        {7, 17, 15, {11, 12, 13, 0, 17}},
    };
    for (const auto& p : passos) {
        t.jogo.modulo.qtdDescarte = p.n;
        t.sprite({Parte::Discartado}).Picture = p.topo;
        t.sprite({Parte::antes}).Picture = p.antes;
        t.vista.MostraDiscarts();
        for (int i = 0; i < 5; ++i) EXPECT_EQ(figura(i), p.leque[i]) << p.n << " place " << i;
    }
}

TEST(Fileiras, PaintingASlotShowsTheRowAndTheTenthFollowsTheCount) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    t.sprite({Parte::cj, 4}).Visible = false;
    t.vista.apresentacartasdojog(3, 3);
    EXPECT_TRUE(t.sprite({Parte::cj, 4}).Visible);
    EXPECT_FALSE(t.sprite({Parte::cj, 10}).Visible);
    EXPECT_EQ(t.sprite({Parte::cj, 3}).Picture, figuraDaFace(4, 6));
    t.jogo.mesa.macete = true;
    t.vista.apresentacartasdamac(8, 0);
    EXPECT_EQ(t.sprite({Parte::cm, 1}).Picture, figuraDaFace(1, 1)) << "hint mode starts at 1";
    t.vista.cena().gesto.destacada = 3;
    t.vista.destaca(5);
    EXPECT_EQ(t.vista.cena().gesto.destacada, 3) << "nine cards never rise";
}

} // namespace
} // namespace corvina

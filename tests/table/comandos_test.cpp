// The table's commands around the play: keys and toolbar words, the card back, a new match.

#include <gtest/gtest.h>

#include "apoio/mesa_de_cena.h"
#include "core/ajustes.h"
#include "core/pecas.h"
#include "core/vista_nula.h"
#include "table/comandos.h"
#include "table/tamanho_da_mesa.h"

namespace corvina {
namespace {

using teste::MesaDeCena;

constexpr const char* kNove = "2/2 4/3 6/4 8/1 10/2 12/3 1/4 3/1 5/2";
constexpr const char* kMac = "1/1 3/2 5/3 7/4 9/1 11/2 13/3 2/4 6/1";

struct Tecla {
    int codigo, shift;
    const char* janela; // the window it opens, nullptr for none
    PedidoDaTecla pedido;
    bool clique; // a toolbar command ran: its click is heard
};

TEST(Comandos, EachKeyDoesWhatItsButtonDoes) {
    const Tecla casos[] = {
        {113, 0, "frmtipos", PedidoDaTecla::Nenhum, true},
        {114, 0, "FrmNome", PedidoDaTecla::Nenhum, true},
        {115, 0, "FrmOpc", PedidoDaTecla::Nenhum, true},
        {116, 0, "FrmRecords", PedidoDaTecla::Nenhum, true},
        {117, 0, nullptr, PedidoDaTecla::Ajuda, true},
        {112, 0, nullptr, PedidoDaTecla::Nenhum, false}, // F1 alone: nothing
        {112, 1, nullptr, PedidoDaTecla::Nenhum, false}, // nor with Shift
        {121, 0, nullptr, PedidoDaTecla::Nenhum, false}, // F10 answered no
        {118, 0, nullptr, PedidoDaTecla::Nenhum, false}, // F7: the back only
    };
    for (const Tecla& c : casos) {
        MesaDeCena t;
        t.arma(kNove, kMac);
        t.jogo.modulo.tocarSom = true;
        t.jogo.modulo.tipoCarta = 4;
        std::vector<std::string> abertas;
        t.vista.aoAbrirJanela = [&](Janela j) {
            abertas.push_back(nomeDaJanela(j));
            t.jogo.modulo.nomeCancelado = true;
        };
        EXPECT_EQ(Form_KeyDown(t.jogo, c.codigo, c.shift), c.pedido) << c.codigo;
        EXPECT_EQ(abertas,
                  c.janela ? std::vector<std::string>{c.janela} : std::vector<std::string>{})
            << c.codigo;
        EXPECT_EQ(t.vista.sons,
                  c.clique ? std::vector<std::string>{"\\CLICK2.wav"} : std::vector<std::string>{})
            << c.codigo;
    }
}

TEST(Comandos, TheClickIsHeardOnlyWithSoundOnAndTheLastTwoButtonsClose) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    t.jogo.modulo.tocarSom = false;
    EXPECT_EQ(Btn_Click(t.jogo, kBotaoSair), PedidoDaTecla::Fechar);
    EXPECT_EQ(Btn_Click(t.jogo, kBotaoFechar), PedidoDaTecla::Fechar);
    EXPECT_TRUE(t.vista.sons.empty());
}

TEST(Comandos, ACancelledNewMatchKeepsTheHandAndOnlyTheToolbarCanCancel) {
    MesaDeCena t;
    t.arma(kNove, kMac);
    t.jogo.modulo.pontosJog = 3;
    bool cancelavel = false;
    t.vista.aoAbrirJanela = [&](Janela) {
        cancelavel = t.jogo.cancelarNome;
        t.jogo.modulo.nomeCancelado = true;
    };
    Btn_Click(t.jogo, kBotaoNovo);
    EXPECT_TRUE(cancelavel);
    EXPECT_FALSE(t.jogo.cancelarNome) << "the next opening starts without its cancel";
    EXPECT_EQ(t.jogo.modulo.pontosJog, 3);
    EXPECT_EQ(t.jogo.mesa.qtdBaralho, 2) << "the hand in progress goes on";
}

TEST(Comandos, ABackBeyondTheEightIsTheLastAndTheKeysWrap) {
    MesaDeCena t;
    t.vista.armazem.grava(chaveBase(), "TipoCarta", "99");
    Form_Load(t.jogo);
    EXPECT_EQ(t.jogo.modulo.tipoCarta, 8);
    EXPECT_EQ(t.sprite(peca::kCostas2).Picture, figuraDoVerso(8));
    Form_KeyDown(t.jogo, 119, 0); // F8: above 8 wraps to 1
    EXPECT_EQ(t.jogo.modulo.tipoCarta, 1);
    EXPECT_EQ(t.sprite(peca::kCostas2).Picture, figuraDoVerso(1));
    Form_KeyDown(t.jogo, 118, 0); // F7: below 1 wraps to 8
    EXPECT_EQ(t.jogo.modulo.tipoCarta, 8);
    EXPECT_EQ(t.sprite(peca::picture3(2)).Picture, figuraDoVerso(8));

    t.vista.aoAbrirJanela = [&](Janela) { t.jogo.modulo.tipoCarta = 6; };
    Btn_Click(t.jogo, kBotaoCartas);
    EXPECT_EQ(t.sprite(peca::kCostas2).Picture, figuraDoVerso(6)) << "a back chosen repaints";
}

// The table's size: on a first start the largest that fits three quarters of the free height;
// later the one chosen, as far as the screen allows.
TEST(TamanhoDaMesa, TheLargestThatFitsOrTheOneChosen) {
    const struct {
        int largura, altura;
        const char* guardado;
        int tamanho;
    } casos[] = {
        {3840, 2160, "", 250},    {2560, 1440, "", 175},    {1920, 1080, "", 125},
        {1280, 1024, "", 125},    {1280, 994, "", 100},     {1024, 768, "", 100},
        {800, 600, "", 100},      {1280, 1024, "200", 150}, {3840, 2160, "150", 150},
        {3840, 2160, "160", 150}, {3840, 2160, "999", 300}, {3840, 2160, "lixo", 100},
        {5120, 2880, "", 300},    {5120, 2880, "200", 200}, {1920, 1080, "300", 175},
        {1000, 2160, "", 125}, // a narrow screen: the width decides
    };
    for (const auto& c : casos)
        EXPECT_EQ(tamanhoDaMesa(c.guardado, c.largura, c.altura), c.tamanho)
            << c.largura << "x" << c.altura << " \"" << c.guardado << "\"";
    // The whole program's scale: only where the desktop left a large screen at ratio 1, in
    // both its sides (a portrait 4K screen is narrow).
    const struct {
        int largura, altura;
        double razao;
        int fator;
    } telas[] = {{1920, 1040, 1, 1}, {2560, 1400, 1, 1},   {3840, 2100, 1, 2},
                 {3840, 2100, 2, 1}, {3840, 2100, 1.5, 1}, {5120, 2840, 1, 2},
                 {7680, 4280, 1, 3}, {2160, 3800, 1, 1},   {0, 0, 1, 1}};
    for (const auto& t : telas)
        EXPECT_EQ(fatorDaTela(t.largura, t.altura, t.razao), t.fator)
            << t.largura << "x" << t.altura << " at " << t.razao;
}

// The sizes offered lie wholly on the screen, the largest that fits among them; full screen
// fills the screen's height or width.
TEST(TamanhoDaMesa, TheSizesOfferedFitTheScreenAndFullScreenFillsIt) {
    const struct {
        int largura, altura;
        std::vector<int> oferecidos;
        double cheia;
    } casos[] = {
        {1920, 1040, {100, 125, 150}, 1.733},
        {1280, 994, {100, 125, 150}, 1.6},
        {1024, 740, {100}, 1.233},
        {800, 560, {100}, 0.933},
        {2160, 3800, {100, 125, 150, 175, 200, 250}, 2.7},
        {3840, 2100, {100, 125, 150, 175, 200, 250, 300}, 3.5},
    };
    for (const auto& c : casos) {
        EXPECT_EQ(tamanhosQueCabem(c.largura, c.altura), c.oferecidos) << c.largura;
        EXPECT_NEAR(fatorQuePreenche(c.largura, c.altura), c.cheia, 0.001) << c.largura;
    }
}

} // namespace
} // namespace corvina

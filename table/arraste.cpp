#include "table/arraste.h"

#include <cmath>

#include "core/descarte.h"
#include "core/pecas.h"
#include "core/textos.h"

namespace corvina {

namespace {
inline constexpr double kDivisorDaAltura = 1.3;
inline constexpr float kDivisorDaLargura = 5;
inline constexpr float kLarguraDoPainel = 11295, kAlturaDoPainel = 6405;

Tarefa<> voltaParaMao(Jogo& jogo, VistaDeCena& v, bool recusado) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    v.Habilita(false);
    m.animando = true;
    co_await v.voaCarta(peca::kPicmover, g.xOrigem, g.yMao, voo::kVoltaParaMao);
    v.apresentacartasdojog(g.cartaAtual, g.cartaAtual);
    v.mostraPeca(peca::cj(g.cartaAtual), true);
    v.mostraPeca(peca::kPicmover, false);
    m.animando = false;
    if (!recusado) g.destacada = kNenhumaDestacada; // the next mouse-over may raise any card
    v.Habilita(true);
}

// The cards between the hole and slot i move one place towards the hole; i becomes the hole.
void abreBuraco(Jogo& jogo, VistaDeCena& v, int i) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    const Carta naMao = cartaNa(m.jogValor, m.jogNaipe, g.cartaAtual);
    const int passo = g.cartaAtual > i ? -1 : 1;
    for (int j = g.cartaAtual; j != i; j += passo) {
        poeCarta(m.jogValor, m.jogNaipe, j, cartaNa(m.jogValor, m.jogNaipe, j + passo));
        v.apresentacartasdojog(static_cast<int16>(j), static_cast<int16>(j));
    }
    v.mostraPeca(peca::cj(g.cartaAtual), true);
    g.cartaAtual = static_cast<int16>(i);
    poeCarta(m.jogValor, m.jogNaipe, i, naMao);
    v.mostraPeca(peca::cj(i), false);
    g.xOrigem = static_cast<int16>(std::lround(v.cena()[peca::cj(i)].Left));
}
} // namespace

bool naFaixaDaMao(float top, float altura, int16 yMao) {
    const auto b = static_cast<float>(yMao - altura / kDivisorDaAltura);
    return b <= top;
}

bool ficaNaMao(int16 cartaAtual, int16 cartaOrigem, int16 qtdJog, float top, float altura,
               int16 yMao) {
    return (cartaAtual != cartaOrigem && naFaixaDaMao(top, altura, yMao)) ||
           (qtdJog == kCasaCompra && top >= yMao);
}

void cj_MouseMove(Jogo& jogo, VistaDeCena& v, int16 index) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    if (m.animando || g.destacada == index) return;
    if (jogo.modulo.animarCartas) v.destaca(index);
    if (g.slotSob == index) return;
    g.slotSob = index;
    Sprite& mover = v.cena()[peca::kPicmover];
    const Sprite& carta = v.cena()[peca::cj(index)];
    mover.Visible = false;
    mover.Picture = carta.Picture;
    mover.Top = carta.Top;
    mover.Left = carta.Left;
    v.mostraPeca(peca::kPicmover, true);
    g.cartaAtual = index;
}

void Picmover_MouseDown(VistaDeCena& v, int16 button, float x, float y) {
    if (button != kBotaoEsquerdo) return;
    Gesto& g = v.cena().gesto;
    v.mostraPeca(peca::cj(g.cartaAtual), false);
    v.destaca(0);
    g.arrastando = 1;
    v.cena().paraFrente(peca::kPicmover);
    g.mouseX = x;
    g.mouseY = y;
    g.xOrigem = static_cast<int16>(std::lround(v.cena()[peca::cj(g.cartaAtual)].Left));
    g.cartaOrigem = g.cartaAtual;
    v.escondeAviso();
}

void Picmover_MouseMove(Jogo& jogo, VistaDeCena& v, int16 button, float x, float y) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    if (button != kBotaoEsquerdo || m.animando || g.arrastando != 1) return;
    Sprite& mover = v.cena()[peca::kPicmover];
    float novoTop = mover.Top + (y - g.mouseY);
    float novoLeft = mover.Left + (x - g.mouseX);
    if (novoTop < 0) novoTop = 0;
    if (novoLeft < 0) novoLeft = 0;
    if (novoTop > kAlturaDoPainel - mover.Height) novoTop = kAlturaDoPainel - mover.Height;
    if (novoLeft > kLarguraDoPainel - mover.Width) novoLeft = kLarguraDoPainel - mover.Width;
    v.poeLugar(peca::kPicmover, {novoLeft, novoTop});
    if (!naFaixaDaMao(mover.Top, mover.Height, g.yMao)) return; // above the band the row rests

    const int limite = m.qtdJog;
    for (int i = 1; i <= limite; ++i) {
        const Sprite& c = v.cena()[peca::cj(i)];
        if (i == g.cartaAtual || !c.Visible) continue;
        const float L = c.Left, W = c.Width, P = mover.Left, PW = mover.Width;
        // One event makes one shift at most: each range is narrower than a slot.
        if (g.cartaAtual > i && P + W / kDivisorDaLargura < L && P + PW > L)
            abreBuraco(jogo, v, i);
        else if (g.cartaAtual < i && L + W / kDivisorDaLargura < P && L + W > P)
            abreBuraco(jogo, v, i);
    }
}

Tarefa<> Picmover_MouseUp(Jogo& jogo, VistaDeCena& v, int16 button) {
    if (button != kBotaoEsquerdo) co_return;
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    g.slotSob = 0;
    g.arrastando = 0;
    const Sprite& mover = v.cena()[peca::kPicmover];
    if (ficaNaMao(g.cartaAtual, g.cartaOrigem, m.qtdJog, mover.Top, mover.Height, g.yMao)) {
        co_await voltaParaMao(jogo, v, false);
    } else if (m.qtdJog < kCasaCompra) {
        if (jogo.modulo.tocarSom) v.tocaSom(som::kNegado, false);
        v.mostraAviso(texto::kAntesPegue);
        co_await voltaParaMao(jogo, v, true);
    } else {
        co_await descartaJog(jogo, g.cartaAtual);
    }
}

} // namespace corvina

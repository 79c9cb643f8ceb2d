#include "table/teclado.h"

#include <algorithm>

#include "core/compra.h"
#include "core/descarte.h"
#include "core/pecas.h"
#include "core/textos.h"
#include "table/ordenar.h"

namespace corvina {

namespace {

// The hands belong to the player: no flight on its way and the machine not playing.
bool livre(const Jogo& jogo) {
    return !jogo.maosEmJogo && !jogo.mesa.animando && jogo.mesa.arrastando == 0;
}

// A part that would take a click takes the key: shown and enabled.
bool aceitaClique(const VistaDeCena& v, Peca peca) {
    const Sprite& s = v.cena()[peca];
    return s.Visible && s.Enabled;
}

bool poeFoco(Jogo& jogo, VistaDeCena& v, int casa) {
    const int16 q = jogo.mesa.qtdJog;
    if (q < 1) return false;
    v.cena().foco = static_cast<int16>(std::clamp(casa, 1, static_cast<int>(q)));
    // A hand of ten raises the card in focus, as the mouse over it does.
    if (jogo.modulo.animarCartas && livre(jogo)) v.destaca(v.cena().foco);
    v.mudouAFoco();
    return true;
}

// The neighbours trade slots, and the focus follows the card.
bool trocaComVizinha(Jogo& jogo, VistaDeCena& v, int passo) {
    Mesa& m = jogo.mesa;
    const int a = v.cena().foco, b = a + passo;
    if (!livre(jogo) || a < 1 || b < 1 || b > m.qtdJog) return false;
    const Carta ca = cartaNa(m.jogValor, m.jogNaipe, a), cb = cartaNa(m.jogValor, m.jogNaipe, b);
    poeCarta(m.jogValor, m.jogNaipe, a, cb);
    poeCarta(m.jogValor, m.jogNaipe, b, ca);
    v.apresentacartasdojog(static_cast<int16>(std::min(a, b)), static_cast<int16>(std::max(a, b)));
    return poeFoco(jogo, v, b);
}

bool descartaEmFoco(Jogo& jogo, VistaDeCena& v) {
    Mesa& m = jogo.mesa;
    const int16 foco = v.cena().foco;
    if (!livre(jogo) || foco < 1 || foco > m.qtdJog || !aceitaClique(v, peca::cj(foco)))
        return false;
    if (m.qtdJog < kCasaCompra) {
        // As a card dropped on the pile before the draw.
        if (jogo.modulo.tocarSom) v.tocaSom(som::kNegado, false);
        v.mostraAviso(texto::kAntesPegue);
        return true;
    }
    // The card leaves from its place in the row, on the moving sprite, as a dropped one does.
    Sprite& mover = v.cena()[peca::kPicmover];
    const Sprite& carta = v.cena()[peca::cj(foco)];
    mover.Picture = carta.Picture;
    mover.Left = carta.Left;
    mover.Top = carta.Top;
    v.mostraPeca(peca::kPicmover, true);
    v.mostraPeca(peca::cj(foco), false);
    m.cartaAtual = foco;
    m.slotSob = 0;
    v.escondeAviso();
    descartaJog(jogo, foco);
    ajustaFoco(jogo, v);
    return true;
}

} // namespace

void ajustaFoco(const Jogo& jogo, VistaDeCena& v) {
    int16& foco = v.cena().foco;
    foco = std::min(foco, jogo.mesa.qtdJog);
    if (foco < 0) foco = 0;
}

void focaCasa(Jogo& jogo, VistaDeCena& v, int16 casa) {
    if (casa >= 1 && casa <= jogo.mesa.qtdJog) poeFoco(jogo, v, casa);
}

bool teclaNaMesa(Jogo& jogo, VistaDeCena& v, Tecla tecla) {
    ajustaFoco(jogo, v);
    const int foco = v.cena().foco;
    const int q = jogo.mesa.qtdJog;
    switch (tecla) {
    case Tecla::Esquerda:
        return poeFoco(jogo, v, foco == 0 ? q : (foco + q - 2) % q + 1);
    case Tecla::Direita:
        return poeFoco(jogo, v, foco == 0 ? 1 : foco % q + 1);
    case Tecla::Primeira:
        return poeFoco(jogo, v, 1);
    case Tecla::Ultima:
        return poeFoco(jogo, v, q);
    case Tecla::CartaAEsquerda:
        return trocaComVizinha(jogo, v, -1);
    case Tecla::CartaADireita:
        return trocaComVizinha(jogo, v, 1);
    case Tecla::Baralho:
        if (!livre(jogo) || !aceitaClique(v, peca::kCostas2)) return false;
        costas2_Click(jogo);
        ajustaFoco(jogo, v);
        return true;
    case Tecla::Pilha:
        if (!livre(jogo) || !aceitaClique(v, peca::kDiscartado)) return false;
        Discartado_Click(jogo);
        ajustaFoco(jogo, v);
        return true;
    case Tecla::Descartar:
        return descartaEmFoco(jogo, v);
    case Tecla::Ordenar:
        if (!livre(jogo) || !v.cena()[peca::kLabel4].Visible || !v.cena()[peca::kLabel4].Enabled)
            return false;
        Label4_Click(jogo);
        return true;
    case Tecla::Solta:
        if (foco == 0) return false;
        v.cena().foco = 0;
        if (jogo.modulo.animarCartas && livre(jogo)) v.destaca(0);
        v.mudouAFoco();
        return true;
    }
    return false;
}

} // namespace corvina

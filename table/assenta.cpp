#include "table/assenta.h"

#include <algorithm>

#include "core/pecas.h"

namespace corvina {

namespace {
bool livre(const Jogo& jogo, const Cena& c) {
    const Mesa& m = jogo.mesa;
    return !m.animando && c.gesto.arrastando != 1 && !jogo.maosEmJogo;
}

// The row as the hand is: every card's face in its slot, the tenth slot shown with ten cards.
bool filaMostraAMao(const Jogo& jogo, const Cena& c) {
    const Mesa& m = jogo.mesa;
    for (int i = 1; i <= m.qtdJog; ++i) {
        const Sprite& s = c[peca::cj(i)];
        if (!s.Visible || s.Picture != figuraDaFace(m.jogNaipe[i], m.jogValor[i])) return false;
    }
    return c[peca::cj(kCasaCompra)].Visible == (m.qtdJog == kCasaCompra);
}
} // namespace

void assentaAtencao(Jogo& jogo, VistaDeCena& v) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    Cena& c = v.cena();
    c.foco = static_cast<int16>(std::clamp<int>(c.foco, 0, std::max<int>(m.qtdJog, 0)));
    if (!livre(jogo, c)) return;
    if (m.qtdJog >= 1 && !filaMostraAMao(jogo, c)) v.apresentacartasdojog(1, m.qtdJog);
    Sprite& mover = c[peca::kPicmover];
    if (!mover.Visible) return;
    const int16 i = g.cartaAtual;
    if (i < 1 || i > m.qtdJog) {
        v.mostraPeca(peca::kPicmover, false);
        g.slotSob = 0;
        return;
    }
    const Sprite& carta = c[peca::cj(i)];
    if (mover.Picture == carta.Picture && mover.Left == carta.Left && mover.Top == carta.Top)
        return;
    mover.Picture = carta.Picture;
    mover.Left = carta.Left;
    mover.Top = carta.Top;
    v.mostraPeca(peca::kPicmover, true);
}

void focaCarta(Jogo& jogo, VistaDeCena& v, int16 casa) {
    Mesa& m = jogo.mesa;
    Gesto& g = v.cena().gesto;
    Cena& c = v.cena();
    c.foco = static_cast<int16>(std::clamp<int>(casa, 0, std::max<int>(m.qtdJog, 0)));
    if (livre(jogo, c) && c.foco >= 1) {
        if (jogo.modulo.animarCartas) v.destaca(c.foco);
        g.slotSob = c.foco;
        g.cartaAtual = c.foco;
        c[peca::kPicmover].Visible = true;
    } else if (livre(jogo, c) && jogo.modulo.animarCartas) {
        v.destaca(0);
    }
    assentaAtencao(jogo, v);
    v.mudouAFoco();
}

} // namespace corvina

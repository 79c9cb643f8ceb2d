#include "table/condutor.h"

#include <algorithm>

#include "core/compra.h"
#include "core/descarte.h"
#include "core/pecas.h"
#include "core/textos.h"
#include "core/visao_do_nivel.h"
#include "table/arraste.h"
#include "table/assenta.h"
#include "table/ordenar.h"

namespace corvina {

Recusa Condutor::verifica(const Jogada& c) const {
    const Mesa& m = jogo_.mesa;
    if (ocupado()) return Recusa::Ocupada;
    const Cena& cena = vista_.cena();
    // A part takes a command where it would take a click: shown and switched on.
    const auto clicavel = [&](Peca p) { return cena[p].Visible && cena[p].Enabled; };
    const auto naFila = [&](int16 casa) { return casa >= 1 && casa <= m.qtdJog; };
    bool pode = false;
    switch (c.acao) {
    case Acao::Comprar:
        pode = clicavel(peca::kCostas2);
        break;
    case Acao::PegarDescarte:
        pode = clicavel(peca::kDiscartado);
        break;
    case Acao::Descartar:
        pode = naFila(c.casa) && cena[peca::cj(c.casa)].Enabled;
        break;
    case Acao::Mover:
        pode = naFila(c.casa) && naFila(c.destino) && c.casa != c.destino;
        break;
    case Acao::Ordenar:
        pode = clicavel(peca::kLabel4);
        break;
    case Acao::Soltar:
        return cena.gesto.arrastando == 1 ? Recusa::Nenhuma : Recusa::SemArraste;
    }
    return pode ? Recusa::Nenhuma : Recusa::Fechada;
}

Recusa Condutor::executa(const Jogada& c) {
    // A new move ends a drag in the middle: the card goes back to its hole first.
    if (c.acao != Acao::Soltar && !emJogada()) largaArraste();
    const Recusa r = verifica(c);
    if (r == Recusa::SemArraste) return r; // a release after a refused press: nothing to say
    if (r != Recusa::Nenhuma) {
        recusa();
        return r;
    }
    dicaEmCurso_.reset(); // the table is about to change: a hint in the making is stale
    if (c.acao == Acao::Mover) {
        move(c.casa, c.destino);
    } else {
        entrando_ = true;
        emCurso_.emplace(conduz(c));
        entrando_ = false;
    }
    avisa();
    return Recusa::Nenhuma;
}

Tarefa<> Condutor::conduz(Jogada c) {
    switch (c.acao) {
    case Acao::Comprar:
        co_await costas2_Click(jogo_);
        break;
    case Acao::PegarDescarte:
        co_await Discartado_Click(jogo_);
        break;
    case Acao::Descartar:
        co_await descartaDaFila(c.casa);
        break;
    case Acao::Ordenar:
        Label4_Click(jogo_);
        break;
    case Acao::Soltar:
        co_await Picmover_MouseUp(jogo_, vista_, kBotaoEsquerdo);
        break;
    case Acao::Mover:
        break;
    }
    assentaAtencao(jogo_, vista_);
    // The move is over: its last word is told with the table at rest.
    fechando_ = true;
    avisa();
    fechando_ = false;
}

Tarefa<> Condutor::descartaDaFila(int16 casa) {
    Mesa& m = jogo_.mesa;
    Gesto& g = vista_.cena().gesto;
    if (m.qtdJog < kCasaCompra) {
        // As a card dropped on the pile before the draw.
        if (jogo_.modulo.tocarSom) vista_.tocaSom(som::kNegado, false);
        vista_.mostraAviso(texto::kAntesPegue);
        co_return;
    }
    // The card leaves from its place in the row on the moving sprite, as a dropped one does.
    Sprite& mover = vista_.cena()[peca::kPicmover];
    const Sprite& carta = vista_.cena()[peca::cj(casa)];
    mover.Picture = carta.Picture;
    mover.Left = carta.Left;
    mover.Top = carta.Top;
    vista_.mostraPeca(peca::kPicmover, true);
    vista_.mostraPeca(peca::cj(casa), false);
    g.cartaAtual = casa;
    g.slotSob = 0;
    vista_.escondeAviso();
    co_await descartaJog(jogo_, casa);
}

void Condutor::move(int16 de, int16 para) {
    Mesa& m = jogo_.mesa;
    Gesto& g = vista_.cena().gesto;
    const Carta levada = cartaNa(m.jogValor, m.jogNaipe, de);
    const int passo = de < para ? 1 : -1;
    for (int j = de; j != para; j += passo)
        poeCarta(m.jogValor, m.jogNaipe, j, cartaNa(m.jogValor, m.jogNaipe, j + passo));
    poeCarta(m.jogValor, m.jogNaipe, para, levada);
    vista_.apresentacartasdojog(std::min(de, para), std::max(de, para));
    // The focus, the mouse's card and the raise stay on the cards they were on, wherever the
    // shift of the row takes them.
    const auto segue = [de, para](int16 casa) -> int16 {
        if (casa == de) return para;
        if (de < para && casa > de && casa <= para) return casa - 1;
        if (para < de && casa >= para && casa < de) return casa + 1;
        return casa;
    };
    int16& foco = vista_.cena().foco;
    foco = segue(foco);
    g.cartaAtual = segue(g.cartaAtual);
    if (g.destacada >= 1 && g.destacada <= m.qtdJog && jogo_.modulo.animarCartas)
        vista_.destaca(segue(g.destacada));
    assentaAtencao(jogo_, vista_);
}

Recusa Condutor::pega(float x, float y) {
    if (ocupado()) {
        recusa();
        return Recusa::Ocupada;
    }
    dicaEmCurso_.reset();
    vista_.cena().foco = 0; // the mouse takes over from the keys
    Picmover_MouseDown(vista_, kBotaoEsquerdo, x, y);
    avisa();
    return Recusa::Nenhuma;
}

void Condutor::arrasta(float x, float y) {
    if (ocupado()) return;
    Picmover_MouseMove(jogo_, vista_, kBotaoEsquerdo, x, y);
}

void Condutor::sobre(int16 casa) {
    if (ocupado()) return;
    cj_MouseMove(jogo_, vista_, casa);
    // The pointer's card is the keys' too: one card chosen, raised, which a click and Enter both
    // throw and a screen reader is told of.
    if (int16& foco = vista_.cena().foco; foco != casa) {
        foco = casa;
        vista_.mudouAFoco();
    }
    assentaAtencao(jogo_, vista_);
}

void Condutor::largaArraste() {
    Gesto& g = vista_.cena().gesto;
    if (g.arrastando != 1) return;
    g.arrastando = 0;
    g.slotSob = 0;
    g.destacada = kNenhumaDestacada;
    vista_.apresentacartasdojog(g.cartaAtual, g.cartaAtual);
    vista_.mostraPeca(peca::cj(g.cartaAtual), true);
    vista_.mostraPeca(peca::kPicmover, false);
}

void Condutor::assenta() {
    if (!ocupado()) assentaAtencao(jogo_, vista_);
}

Recusa Condutor::pedeDica() {
    const Mesa& m = jogo_.mesa;
    if (ocupado()) {
        recusa();
        return Recusa::Ocupada;
    }
    if (m.qtdJog != kCartasNaMao && m.qtdJog != kCasaCompra) return Recusa::Fechada;
    dicaEmCurso_.reset();
    dicaEmCurso_.emplace(calculaDica());
    return Recusa::Nenhuma;
}

Tarefa<> Condutor::calculaDica() {
    const std::vector<int16> pedida = assinatura();
    // Named before it is awaited: GCC 12 destroys a lambda made inside a co_await twice.
    Pensamento<Dica> pensamento(vista_, [v = visaoDe(jogo_, Lado::Jog)] {
        return dicaDaVisao(v, Orcamento{.ms = kMsDaDica});
    });
    const Dica d = co_await pensamento;
    // The table moved on while it was thought: that hint is for a table that is gone.
    if (d.tipo == Dica::Tipo::Nenhuma || assinatura() != pedida) co_return;
    dica_ = d;
    assinaturaDaDica_ = pedida;
    avisa();
}

std::optional<Dica> Condutor::dica() const {
    if (!dica_ || ocupado() || assinatura() != assinaturaDaDica_) return std::nullopt;
    return dica_;
}

std::vector<int16> Condutor::assinatura() const {
    const Mesa& m = jogo_.mesa;
    std::vector<int16> a{m.qtdJog,        m.qtdBaralho,    jogo_.modulo.qtdDescarte,
                         m.discarteValor, m.discarteNaipe, m.qtdMac};
    for (int i = 1; i <= m.qtdJog; ++i) a.insert(a.end(), {m.jogValor[i], m.jogNaipe[i]});
    return a;
}

void Condutor::cancela() {
    dicaEmCurso_.reset();
    emCurso_.reset();
}

void Condutor::recusa() {
    if (jogo_.modulo.tocarSom) vista_.tocaSom(som::kNegado, false);
}

void Condutor::avisa() {
    if (aoMudar) aoMudar();
}

} // namespace corvina

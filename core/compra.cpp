#include "core/compra.h"

#include "core/novojogo.h"
#include "core/pecas.h"
#include "core/pilha.h"
#include "core/textos.h"

namespace corvina {

namespace {
void recusaSegundaCompra(VistaMesa& v) {
    v.caixaMensagem(texto::kDevesDescartar, kEstiloInformacao, texto::kMovimentoNaoPermitido);
}

} // namespace

// Both draws end alike once the card stands face up in slot 10.
void fechaCompra(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    v.apresentacartasdojog(kCasaCompra, kCasaCompra);
    v.ponteiro(peca::kCostas2, Ponteiro::proibido);
    v.ponteiro(peca::kDiscartado, Ponteiro::proibido);
    v.ponteiro(peca::kPicmover, Ponteiro::padrao);
    v.Habilita(true);
    v.habilitaPeca(peca::kDiscartado, false);
    v.habilitaPeca(peca::kCostas, false);
    v.mostraPrompt(texto::kAgoraDescarte);
}

void voltaOrdenarAuto(Jogo& jogo) {
    jogo.mesa.ordemAuto = 0;
    jogo.vista.legendaOrdenar(texto::kAuto);
}

Tarefa<> costas2_Click(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    if (jogo.maosEmJogo) co_return;        // the machine is playing: the hands are not the player's
    v.habilitaPeca(peca::kCostas2, false); // no second click while this one runs
    v.escondeAviso();
    if (m.qtdJog == kCasaCompra) {
        recusaSegundaCompra(v);
        v.habilitaPeca(peca::kCostas2, true);
        co_return;
    }
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta1, false);
    if (m.qtdBaralho == 0) {
        v.caixaMensagem(texto::kAcabouBaralhoJog, kEstiloSimples, "");
        v.habilitaPeca(peca::kCostas2, true);
        jogo.encerraMao(FimDaMao::SemMonte);
        novojogo(jogo); // no winner: the score stands
        co_return;
    }
    voltaOrdenarAuto(jogo);
    v.copiaFigura(peca::kDiscartado2, peca::kCostas);
    copiaLugar(v, peca::kDiscartado2, peca::kCostas);
    v.mostraPeca(peca::kDiscartado2, true);
    m.animando = true;
    co_await voaPara(v, peca::kDiscartado2, peca::cj(kCasaCompra), voo::kCompraDoBaralho);
    v.mostraPeca(peca::kDiscartado2, false);
    v.copiaFigura(peca::cj(kCasaCompra), peca::kDiscartado2); // back up, for a moment
    v.mostraPeca(peca::cj(kCasaCompra), true);
    co_await v.espera(pausa::kChegada);

    m.animando = false;
    m.qtdJog = kCasaCompra;
    poeCarta(m.jogValor, m.jogNaipe, kCasaCompra,
             cartaNa(m.baralhoValor, m.baralhoNaipe, m.qtdBaralho));
    --m.qtdBaralho;
    jogo.registro.toma(Lado::Jog, Origem::Monte, cartaNa(m.jogValor, m.jogNaipe, kCasaCompra));
    fechaCompra(jogo);
    v.habilitaPeca(peca::kCostas2, true); // live, so that a second click meets the refusal
    escreveTrincas(jogo);
}

Tarefa<> Discartado_Click(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    if (jogo.maosEmJogo) co_return;
    v.habilitaPeca(peca::kDiscartado, false);
    v.escondeAviso();
    if (jogo.modulo.qtdDescarte == 0) co_return; // stays off until the next Habilita(True)
    if (m.qtdJog == kCasaCompra) {
        recusaSegundaCompra(v);
        v.habilitaPeca(peca::kDiscartado, true);
        co_return;
    }
    voltaOrdenarAuto(jogo);
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta1, false);
    tiraDaPilha(jogo);
    m.animando = true;
    co_await voaPara(v, peca::kDiscartado2, peca::cj(kCasaCompra), voo::kCompraDoDescarte);
    v.mostraPeca(peca::kDiscartado2, false);
    v.copiaFigura(peca::cj(kCasaCompra), peca::kDiscartado2);

    m.animando = false;
    m.qtdJog = kCasaCompra;
    m.jogValor[kCasaCompra] = m.discarteValor;
    m.jogNaipe[kCasaCompra] = m.discarteNaipe;
    jogo.historico.toma(Lado::Jog, cartaNa(m.jogValor, m.jogNaipe, kCasaCompra));
    jogo.registro.toma(Lado::Jog, Origem::Pilha, cartaNa(m.jogValor, m.jogNaipe, kCasaCompra));
    fechaCompra(jogo);
    escreveTrincas(jogo);
}

} // namespace corvina

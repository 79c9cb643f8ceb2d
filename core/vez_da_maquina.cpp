#include "core/vez_da_maquina.h"

#include "core/nivel.h"
#include "core/novojogo.h"
#include "core/pecas.h"
#include "core/pilha.h"
#include "core/textos.h"
#include "core/visao_do_nivel.h"

namespace corvina {

namespace {
inline constexpr int kUltimaCartaDoMonte = 1;

// The seat decides on a copy of what it may see, so that a view may let it think elsewhere. (The
// thoughts are named before they are awaited: GCC 12 destroys a lambda made inside a co_await
// twice.)
Tarefa<bool> pegaOuCompra(Jogo& jogo) {
    Nivel& nivel = jogo.nivel;
    Pensamento<bool> pensamento(jogo.vista, [&nivel, visao = visaoDe(jogo, Lado::Mac)] {
        return nivel.pegaDescarte(visao);
    });
    co_return co_await pensamento;
}

Tarefa<int16> escolheDescarte(Jogo& jogo, bool doDescarte) {
    Nivel& nivel = jogo.nivel;
    Pensamento<int16> pensamento(jogo.vista,
                                 [&nivel, visao = visaoDe(jogo, Lado::Mac), doDescarte] {
                                     return nivel.descarte(visao, doDescarte);
                                 });
    const int16 carta = co_await pensamento;
    // A slot outside the hand throws the card that came in, so the turn always ends.
    co_return carta >= 1 && carta <= kCasaCompra ? carta : kCasaCompra;
}

Tarefa<> pegaDoDescarte(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta3, false);
    tiraDaPilha(jogo);

    m.animando = true;
    co_await voaPara(v, peca::kDiscartado2, peca::cm(kCasaCompra), voo::kDescarte);
    v.copiaFigura(peca::cm(kCasaCompra), peca::kDiscartado2);
    v.mostraPeca(peca::kDiscartado2, false);
    m.animando = false;
    v.mostraPeca(peca::cm(kCasaCompra), true);
    co_await v.espera(pausa::kChegada);

    m.qtdMac = kCasaCompra;
    m.macValor[kCasaCompra] = m.discarteValor;
    m.macNaipe[kCasaCompra] = m.discarteNaipe;
    jogo.historico.toma(Lado::Mac, cartaNa(m.macValor, m.macNaipe, kCasaCompra));
    jogo.registro.toma(Lado::Mac, Origem::Pilha, cartaNa(m.macValor, m.macNaipe, kCasaCompra));
    v.apresentacartasdamac(8, 0);
    const int16 carta = co_await escolheDescarte(jogo, true);
    co_await macdiscarta(jogo, carta);
}

Tarefa<> compraDoMonte(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta3, false);
    v.copiaFigura(peca::kDiscartado2, peca::kCostas);
    copiaLugar(v, peca::kDiscartado2, peca::kCostas);
    v.mostraPeca(peca::kDiscartado2, true);
    if (m.qtdBaralho == kUltimaCartaDoMonte) v.mostraPeca(peca::kCostas, false);
    // The drawn card flies with its back up and stays unseen: no pause, no guard.
    co_await voaPara(v, peca::kDiscartado2, peca::cm(kCasaCompra), voo::kCompraDoBaralho);
    v.copiaFigura(peca::cm(kCasaCompra), peca::kDiscartado2);
    v.mostraPeca(peca::kDiscartado2, false);

    m.qtdMac = kCasaCompra;
    const Carta comprada = cartaNa(m.baralhoValor, m.baralhoNaipe, m.qtdBaralho);
    poeCarta(m.macValor, m.macNaipe, kCasaCompra, comprada);
    --m.qtdBaralho;
    jogo.registro.toma(Lado::Mac, Origem::Monte, comprada);
    v.apresentacartasdamac(8, 0);
    const int16 carta = co_await escolheDescarte(jogo, false);
    co_await macdiscarta(jogo, carta);
}
} // namespace

Tarefa<FimDaVez> macjoga(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    v.Habilita(false);
    if (co_await pegaOuCompra(jogo)) {
        co_await pegaDoDescarte(jogo);
        co_return FimDaVez::Descartou;
    }
    if (m.qtdBaralho == 0) {
        v.caixaMensagem(texto::kAcabouBaralhoMac, kEstiloSimples, "");
        v.Habilita(true);
        jogo.encerraMao(FimDaMao::SemMonte);
        novojogo(jogo);
        co_return FimDaVez::AcabouBaralho;
    }
    co_await compraDoMonte(jogo);
    co_return FimDaVez::Descartou;
}

Tarefa<> macdiscarta(Jogo& jogo, int16 carta) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    v.Habilita(false);
    v.apresentacartasdamac(carta, carta);
    co_await v.espera(pausa::kChegada);
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta3, false);
    abreLugarNaPilha(jogo);
    v.copiaFigura(peca::kDiscartado2, peca::cm(carta));
    copiaLugar(v, peca::kDiscartado2, peca::cm(carta));
    v.mostraPeca(peca::kDiscartado2, true);
    v.mostraPeca(peca::cm(carta), false);

    m.animando = true;
    co_await voaPara(v, peca::kDiscartado2, peca::kDiscartado, voo::kDescarte);
    v.copiaFigura(peca::kDiscartado, peca::kDiscartado2);
    v.mostraPeca(peca::kDiscartado, true);
    v.mostraPeca(peca::kDiscartado2, false);
    m.animando = false;
    co_await v.espera(pausa::kDepoisDoDescarteDaMaquina);

    // The hand changes only now that the flight is over.
    jogo.registro.descarta(Lado::Mac, cartasDe(m.macValor, m.macNaipe, m.qtdMac), carta);
    m.discarteValor = m.macValor[carta];
    m.discarteNaipe = m.macNaipe[carta];
    jogo.historico.descarta(Lado::Mac, Carta{m.discarteValor, m.discarteNaipe});
    --m.qtdMac;
    for (int s = carta; s <= m.qtdMac; ++s) {
        m.macValor[s] = m.macValor[s + 1];
        m.macNaipe[s] = m.macNaipe[s + 1];
    }
    if (carta != kCasaCompra) v.mostraPeca(peca::cm(carta), true);
    v.apresentacartasdamac(1, 0);
    v.Habilita(true);
    v.habilitaPeca(peca::kDiscartado, true);
    v.habilitaPeca(peca::kCostas, true);
    v.mostraPrompt(texto::kPegueBaralhoOuDescarte);
}

} // namespace corvina

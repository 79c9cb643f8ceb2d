#include "core/finaliza.h"

#include <algorithm>

#include "core/agrupa_mac.h"
#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "core/textos.h"

namespace corvina {

namespace {
long numeroNaFaixa(VistaMesa& v, const std::string& chave, const char* nome, long menor) {
    return std::clamp(numeroDoTexto(v.leAjuste(chave, nome, "0")), menor, kMaiorContagem);
}

// The record after this match; a stored figure out of range counts as its nearest bound.
Recorde novoRecorde(VistaMesa& v, const std::string& nome, bool venceu) {
    const std::string chave = chaveJogador(nome);
    Recorde r{numeroNaFaixa(v, chave, ajuste::kVitorias, 0),
              numeroNaFaixa(v, chave, ajuste::kDerrotas, 0),
              numeroNaFaixa(v, chave, ajuste::kSaldo, -kMaiorContagem)};
    long& contagem = venceu ? r.vitorias : r.derrotas;
    contagem = std::min(contagem + 1, kMaiorContagem);
    r.saldo = std::clamp(r.saldo + (venceu ? 1 : -1), -kMaiorContagem, kMaiorContagem);
    return r;
}
} // namespace

void gravaRecorde(VistaMesa& v, const FimDaPartida& fim) {
    const std::string chave = chaveJogador(fim.nome);
    const LoteDeAjustes lote(v); // the record moves as a whole
    v.gravaAjuste(chave, ajuste::kVitorias, std::to_string(fim.recorde.vitorias));
    v.gravaAjuste(chave, ajuste::kDerrotas, std::to_string(fim.recorde.derrotas));
    v.gravaAjuste(chave, ajuste::kSaldo, std::to_string(fim.recorde.saldo));
}

void finaliza(Jogo& jogo, Lado quem) {
    VistaMesa& v = jogo.vista;
    Module1& g = jogo.modulo;
    jogo.encerraMao(quem == Lado::Jog ? FimDaMao::Jog : FimDaMao::Mac);
    AgrupaMac(jogo);
    v.apresentacartasdamac(11, 0);

    Placar placar;
    if (quem == Lado::Jog) {
        ++g.pontosJog;
        placar.manchete = g.pontosJog == kPontosDaPartida
                              ? std::string(texto::kVenceuPartida)
                              : std::string(texto::kVencedorDaMao) + g.nomeJogador;
    } else {
        ++g.pontosMac;
        placar.manchete = g.pontosMac == kPontosDaPartida
                              ? std::string(texto::kPerdeuPartida)
                              : std::string(texto::kVencedorDaMao) + texto::kCpu;
    }
    placar.pontosJog = g.pontosJog;
    placar.pontosMac = g.pontosMac;
    v.mostraPlacar(g.pontosJog, g.pontosMac);
    // The blinking of a won match goes with the sound setting.
    placar.pisca =
        g.tocarSom && (g.pontosJog >= kPontosDaPartida || g.pontosMac >= kPontosDaPartida);
    v.preparaPlacar(placar);
    if (g.tocarSom) {
        if (g.pontosJog >= kPontosDaPartida)
            v.tocaSom(som::kValeu, false);
        else if (g.pontosMac >= kPontosDaPartida)
            v.tocaSom(som::kFinalC, false);
    }
    // The match is stored before its score window opens: whatever that window offers (the
    // statistics) sees it, and a game killed while it is up has lost nothing.
    const bool acabou = g.pontosJog == kPontosDaPartida || g.pontosMac == kPontosDaPartida;
    if (acabou) {
        const bool venceu = g.pontosJog == kPontosDaPartida;
        // Fair is what the deal was: only Clássico may exchange the hands.
        v.partidaTerminada({g.nomeJogador, g.nivel,
                            !trocaNaDistribuicao(g.nivel, g.distribuicaoJusta), venceu, g.pontosJog,
                            g.pontosMac, novoRecorde(v, g.nomeJogador, venceu), jogo.maos});
    }
    v.abreJanela(Janela::FrmPlacar);
    v.processaEventos();
    v.mostraTrincas("");

    if (acabou) {
        g.pontosMac = 0;
        g.pontosJog = 0;
        jogo.maos.clear();
        v.abreJanela(Janela::FrmNome);
    }
    v.mostraMesa(); // the player chosen may use another mode
}

} // namespace corvina

#include "core/finaliza.h"

#include "core/agrupa_mac.h"
#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "core/textos.h"

namespace corvina {

namespace {
void somaAoRegistro(VistaMesa& v, const std::string& chave, const char* nome, long parcela) {
    const long antes = numeroDoTexto(v.leAjuste(chave, nome, "0"));
    v.gravaAjuste(chave, nome, std::to_string(antes + parcela));
}
} // namespace

void finaliza(Jogo& jogo, Lado quem) {
    VistaMesa& v = jogo.vista;
    Module1& g = jogo.modulo;
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
    v.abreJanela(Janela::FrmPlacar);
    v.processaEventos();
    v.processaEventos();
    v.mostraTrincas("");

    if (g.pontosJog == kPontosDaPartida || g.pontosMac == kPontosDaPartida) {
        const std::string chave = chaveJogador(g.nomeJogador);
        const bool venceu = g.pontosJog == kPontosDaPartida;
        {
            const LoteDeAjustes lote(v); // the record moves as a whole
            somaAoRegistro(v, chave, venceu ? ajuste::kVitorias : ajuste::kDerrotas, 1);
            somaAoRegistro(v, chave, ajuste::kSaldo, venceu ? 1 : -1);
            // Fair is what the deal was: only Clássico may exchange the hands.
            v.partidaTerminada({g.nomeJogador, g.nivel,
                                !trocaNaDistribuicao(g.nivel, g.distribuicaoJusta), venceu,
                                g.pontosJog, g.pontosMac});
        }
        g.pontosMac = 0;
        g.pontosJog = 0;
        v.abreJanela(Janela::FrmNome);
    }
    v.mostraMesa(); // the player chosen may use another mode
}

} // namespace corvina

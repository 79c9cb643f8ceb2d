#include "players/historico_do_jogador.h"

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/lista_de_jogadores.h"

namespace corvina {

namespace {
inline constexpr const char* kPartidas = "Historico";
inline constexpr const char* kAntigas = "HistoricoAntigo";
inline constexpr const char* kPartidasDanificadas = "HistoricoDanificado";
inline constexpr const char* kAntigasDanificadas = "HistoricoAntigoDanificado";

void grava(Armazem& a, const std::string& chave, const HistoricoDePartidas& h) {
    const TextoDoHistorico t = escreveHistorico(h);
    const LoteDeAjustes lote(a);
    a.grava(chave, kPartidas, t.partidas);
    a.grava(chave, kAntigas, t.antigas);
}
} // namespace

HistoricoDePartidas leHistoricoDoJogador(Armazem& a, const std::string& nome) {
    const std::string chave = chaveJogador(nome);
    const std::string partidas = a.le(chave, kPartidas, ""), antigas = a.le(chave, kAntigas, "");
    if (auto h = leHistorico(partidas, antigas)) return *h;
    // Kept as it was, once: a history damaged again replaces the copy of the last damage.
    const LoteDeAjustes lote(a);
    a.grava(chave, kPartidasDanificadas, partidas);
    a.grava(chave, kAntigasDanificadas, antigas);
    grava(a, chave, HistoricoDePartidas{});
    return {};
}

void registraNoHistorico(Armazem& a, const std::string& nome, const PartidaDoHistorico& p) {
    HistoricoDePartidas h = leHistoricoDoJogador(a, nome);
    h.registra(p);
    grava(a, chaveJogador(nome), h);
}

void apagaHistoricoDoJogador(Armazem& a, const std::string& nome) {
    const std::string chave = chaveJogador(nome);
    const LoteDeAjustes lote(a);
    for (const char* valor : {kPartidas, kAntigas, kPartidasDanificadas, kAntigasDanificadas})
        a.grava(chave, valor, "");
}

void zeraEstatisticas(Armazem& a) {
    const LoteDeAjustes lote(a);
    for (const std::string& nome : leListaDeJogadores(a)) apagaHistoricoDoJogador(a, nome);
}

} // namespace corvina

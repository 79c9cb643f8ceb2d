#include "players/fim_da_partida.h"

#include <map>
#include <utility>

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "machine/partida_em_texto.h"

namespace corvina {

namespace {

// The values an earlier version kept in each player's key.
inline constexpr const char* kPartidas = "Historico";
inline constexpr const char* kAntigas = "HistoricoAntigo";
inline constexpr const char* kPartidasDanificadas = "HistoricoDanificado";
inline constexpr const char* kAntigasDanificadas = "HistoricoAntigoDanificado";

// True when the store has the record on the disk (or keeps it for the run by choice).
bool gravaRecorde(ArquivoDeAjustes& a, const std::string& nome, const Recorde& r) {
    const std::string chave = chaveJogador(nome);
    {
        const LoteDeAjustes lote(a); // the record moves as a whole
        a.grava(chave, ajuste::kVitorias, std::to_string(r.vitorias));
        a.grava(chave, ajuste::kDerrotas, std::to_string(r.derrotas));
        a.grava(chave, ajuste::kSaldo, std::to_string(r.saldo));
    }
    return !a.pendente();
}

using Textos = std::pair<std::string, std::string>; // the matches, the folded totals

std::map<std::string, Textos> textosDoArmazem(const ArquivoDeAjustes& a, const char* partidas,
                                              const char* antigas) {
    std::map<std::string, Textos> porJogador;
    for (auto& [jogador, texto] : a.valoresDosJogadores(partidas))
        porJogador[jogador].first = std::move(texto);
    for (auto& [jogador, texto] : a.valoresDosJogadores(antigas))
        porJogador[jogador].second = std::move(texto);
    return porJogador;
}

void trazHistoricos(ArquivoDeAjustes& a, BancoDoJogo& banco) {
    const auto vivos = textosDoArmazem(a, kPartidas, kAntigas);
    const auto danificados = textosDoArmazem(a, kPartidasDanificadas, kAntigasDanificadas);
    if (vivos.empty() && danificados.empty()) return;
    const LoteDeAjustes lote(a);
    for (const auto& [jogador, t] : danificados)
        if (banco.persistente() && banco.guardaDanificado(jogador, t.first, t.second))
            for (const char* valor : {kPartidasDanificadas, kAntigasDanificadas})
                a.grava(chaveJogador(jogador), valor, "");
    for (const auto& [jogador, t] : vivos)
        if (banco.persistente() && banco.importaHistorico(jogador, t.first, t.second))
            for (const char* valor : {kPartidas, kAntigas})
                a.grava(chaveJogador(jogador), valor, "");
}

} // namespace

void registraFimDaPartida(ArquivoDeAjustes& ajustes, BancoDoJogo& banco, const FimDaPartida& fim,
                          int dia) {
    const long pendente = banco.registraPartida(
        fim.nome, {dia, fim.nivel, fim.justa, fim.venceu, fim.maosGanhas, fim.maosPerdidas},
        fim.recorde, escreveMaos(fim.maos));
    if (gravaRecorde(ajustes, fim.nome, fim.recorde) && pendente != 0)
        banco.concluiPendente(pendente);
}

void preparaDados(ArquivoDeAjustes& ajustes, BancoDoJogo& banco) {
    trazHistoricos(ajustes, banco);
    // The values are whole, not added: a record applied twice is the same record.
    for (const RecordePendente& r : banco.pendentes())
        if (gravaRecorde(ajustes, r.nome, r.recorde)) banco.concluiPendente(r.id);
}

} // namespace corvina

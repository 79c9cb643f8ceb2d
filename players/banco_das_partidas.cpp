// The database's kept matches and reviews (the rest of BancoDoJogo is in banco_do_jogo.cpp).

#include <cstdio>

#include "machine/niveis.h"
#include "players/banco_do_jogo.h"
#include "players/comando_sql.h"
#include "players/dobra_nome.h"

namespace corvina {

std::optional<std::string> BancoDoJogo::partidaGuardada(const std::string& nome) {
    ComandoSql le(db_, "SELECT texto FROM partidas_guardadas WHERE jogador = ?");
    if (le.texto(1, dobraNome(nome)).passo() != SQLITE_ROW) return std::nullopt;
    return std::string(le.textoDa(0));
}

bool BancoDoJogo::guardaPartida(const std::string& nome, std::string_view texto) {
    ComandoSql grava(db_, "INSERT OR REPLACE INTO partidas_guardadas VALUES (?, ?)");
    return grava.texto(1, dobraNome(nome)).texto(2, texto).feito() || falha("kept match");
}

void BancoDoJogo::esquecePartida(const std::string& nome) {
    ComandoSql tira(db_, "DELETE FROM partidas_guardadas WHERE jogador = ?");
    if (!tira.texto(1, dobraNome(nome)).feito()) falha("kept match");
}

void BancoDoJogo::poePartidaDeLado(const std::string& nome, std::string_view texto) {
    const std::string chave = dobraNome(nome);
    std::fprintf(stderr, "corvina: a kept match that can't be played on was set aside\n");
    if (!executa("BEGIN IMMEDIATE")) {
        falha("set aside");
        return;
    }
    ComandoSql poe(db_, "INSERT OR REPLACE INTO partidas_postas_de_lado VALUES (?, ?)");
    ComandoSql tira(db_, "DELETE FROM partidas_guardadas WHERE jogador = ?");
    if (!poe.texto(1, chave).texto(2, texto).feito() || !tira.texto(1, chave).feito() ||
        !executa("COMMIT")) {
        desfaz();
        falha("set aside");
    }
}

bool BancoDoJogo::guardaRevisao(const std::string& chave, const PartidaDoHistorico& p,
                                std::string_view maos) {
    ComandoSql poe(db_,
                   "INSERT INTO revisoes (jogador, dia, nivel, venceu, ganhas, perdidas, maos) "
                   "VALUES (?, ?, ?, ?, ?, ?, ?)");
    if (!poe.texto(1, chave)
             .numero(2, p.dia)
             .texto(3, std::string(1, dadosDoNivel(p.nivel).codigo) + (p.justa ? "j" : ""))
             .numero(4, p.venceu)
             .numero(5, p.maosGanhas)
             .numero(6, p.maosPerdidas)
             .texto(7, maos)
             .feito())
        return false;
    // The oldest go first: past the number kept, then past the size kept.
    ComandoSql conta(db_,
                     "SELECT id, length(maos) FROM revisoes WHERE jogador = ? ORDER BY id DESC");
    conta.texto(1, chave);
    std::size_t bytes = 0;
    int quantas = 0;
    long ultima = 0;
    while (conta.passo() == SQLITE_ROW) {
        bytes += static_cast<std::size_t>(conta.numeroDa(1));
        if (++quantas > kRevisoesPorJogador || bytes > kBytesDeRevisaoPorJogador) break;
        ultima = conta.numeroDa(0);
    }
    ComandoSql tira(db_, "DELETE FROM revisoes WHERE jogador = ? AND id < ?");
    return tira.texto(1, chave).numero(2, ultima).feito();
}

std::vector<RevisaoDePartida> BancoDoJogo::revisoes(const std::string& nome) {
    std::vector<RevisaoDePartida> lista;
    ComandoSql le(db_, "SELECT id, dia, nivel, venceu, ganhas, perdidas, maos FROM revisoes "
                       "WHERE jogador = ? ORDER BY id DESC LIMIT ?");
    le.texto(1, dobraNome(nome)).numero(2, kRevisoesPorJogador);
    while (le.passo() == SQLITE_ROW) {
        const std::string_view nivel = le.textoDa(2);
        const auto tipo = nivel.empty() ? std::nullopt : nivelDoCodigo(nivel[0]);
        if (!tipo) continue; // a row of another version: passed over
        RevisaoDePartida r{le.numeroDa(0),
                           {static_cast<int>(le.numeroDa(1)), *tipo, nivel.size() > 1,
                            le.numeroDa(3) != 0, static_cast<int>(le.numeroDa(4)),
                            static_cast<int>(le.numeroDa(5))},
                           std::string(le.textoDa(6))};
        lista.push_back(std::move(r));
    }
    return lista;
}

} // namespace corvina

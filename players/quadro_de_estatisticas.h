#pragma once
// What the statistics window shows of a player's history, as texts: one column per level (the
// fair deal of Clássico apart; Esperto and Forte never exchange hands), one line per figure;
// the curve of the share won at each level over the last matches, and that curve in words for
// a screen reader.

#include <array>
#include <string>
#include <vector>

#include "players/historico_de_partidas.h"

namespace corvina {

// A column per level, two for a level that may exchange the hands (each deal apart).
inline constexpr std::size_t kColunasDoQuadro = [] {
    std::size_t n = 0;
    for (const DadosDoNivel& d : kNiveisDoJogo) n += trocaNaDistribuicao(d.tipo, false) ? 2 : 1;
    return n;
}();
inline constexpr int kPartidasDaCurva = 100; // the last matches the chart follows

struct ColunaDoQuadro {
    std::string titulo; // "Clássico", "Clássico (justa)", "Esperto"...
    ColunaDoHistorico coluna;
};
const std::array<ColunaDoQuadro, kColunasDoQuadro>& colunasDoQuadro();

struct LinhaDoQuadro {
    std::string nome;
    std::array<std::string, kColunasDoQuadro> valores;
};
std::vector<LinhaDoQuadro> quadroDeEstatisticas(const HistoricoDePartidas& h);

// For each column, after each of the last matches at it: the match's place among the last
// kPartidasDaCurva of the player (1 the oldest), and the share won so far among them.
struct PontoDaCurva {
    int partida;
    double fracao;
};
std::array<std::vector<PontoDaCurva>, kColunasDoQuadro>
curvasDeAproveitamento(const HistoricoDePartidas& h);

// "Nas últimas 20 partidas: Clássico, 60% (6 de 10); Esperto, 50% (5 de 10)."
std::string resumoDasCurvas(const HistoricoDePartidas& h);

// "25/11/2026" for a day of the history.
std::string textoDoDia(int dia);

} // namespace corvina

#pragma once
// A player's history of matches: one short entry per match ended, the last 1,000 kept, older
// ones folded into totals, and the statistics that the statistics window shows, one column per
// level with the fair deal apart. Plain data, written as text into the player's key of the
// store.

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "core/recorde.h"
#include "machine/niveis.h"

namespace corvina {

inline constexpr std::size_t kPartidasNoHistorico = 1000;

// A match played to its end. `dia` counts days from 1 January 2000.
struct PartidaDoHistorico {
    int dia = 0;
    TipoNivel nivel = TipoNivel::Classico;
    bool justa = false;
    bool venceu = false;
    int maosGanhas = 0, maosPerdidas = 0;
    bool operator==(const PartidaDoHistorico&) const = default;
};

// A column of the statistics: one level, with or without the fair deal.
struct ColunaDoHistorico {
    TipoNivel nivel = TipoNivel::Classico;
    bool justa = false;
};
inline constexpr std::size_t kColunasDoHistorico = 2 * kNiveisDoJogo.size();
std::size_t indiceDaColuna(ColunaDoHistorico c);

// What the matches of a column add up to. The streaks run along the column's own matches:
// a loss at another level doesn't break a streak at this one.
struct Estatisticas {
    long jogadas = 0, vitorias = 0, derrotas = 0;
    long maosGanhas = 0, maosPerdidas = 0;
    long sequencia = 0; // the streak at the end: wins above 0, losses below
    long maiorSequenciaDeVitorias = 0, maiorSequenciaDeDerrotas = 0;
    int ultimoDia = -1; // -1: never played
    bool operator==(const Estatisticas&) const = default;

    void soma(const PartidaDoHistorico& p);
    long sequenciaDeVitorias() const { return sequencia > 0 ? sequencia : 0; }
    // The share of matches won, 0 when none was played.
    double fracaoDeVitorias() const;
};

struct HistoricoDePartidas {
    std::deque<PartidaDoHistorico> partidas;               // the newest last
    std::array<Estatisticas, kColunasDoHistorico> antigas; // what was folded away

    // Adds a match; beyond the cap the oldest is folded into the totals.
    void registra(const PartidaDoHistorico& p);
    Estatisticas estatisticas(ColunaDoHistorico c) const;
    bool operator==(const HistoricoDePartidas&) const = default;
};

// The two texts kept in the store: the matches (eight characters each) and the folded totals.
struct TextoDoHistorico {
    std::string partidas, antigas;
};
TextoDoHistorico escreveHistorico(const HistoricoDePartidas& h);
// Nothing when a text is damaged: the caller keeps it aside and begins anew.
std::optional<HistoricoDePartidas> leHistorico(std::string_view partidas, std::string_view antigas);

// The day of a date, counted from 1 January 2000 (earlier dates count 0).
int diaDoHistorico(int ano, int mes, int dia);

} // namespace corvina

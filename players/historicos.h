#pragma once
// Where the players' histories of matches are kept, as the windows that show or clear them
// need it. A history that can't be read is set aside by the keeper and reads as empty.

#include <string>
#include <vector>

#include "players/historico_de_partidas.h"

namespace corvina {

// A finished match as its review reads it: the history's line and every hand, move by move.
struct RevisaoDePartida {
    long id = 0;
    PartidaDoHistorico partida;
    std::string maos; // the hands' logs, as text
};

class Historicos {
  public:
    virtual ~Historicos() = default;
    // Names are matched without regard to case, as the store's keys are.
    virtual HistoricoDePartidas historico(const std::string& nome) = 0;
    virtual void apagaHistorico(const std::string& nome) = 0;
    // Every history of these players, at once.
    virtual void zeraHistoricos(const std::vector<std::string>& nomes) = 0;
    // The player's last matches with their hands, the newest first; none where none are kept.
    virtual std::vector<RevisaoDePartida> revisoes(const std::string& nome) {
        (void)nome;
        return {};
    }
};

} // namespace corvina

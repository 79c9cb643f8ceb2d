#pragma once
// Where the players' histories of matches are kept, as the windows that show or clear them
// need it. A history that can't be read is set aside by the keeper and reads as empty.

#include <string>
#include <vector>

#include "players/historico_de_partidas.h"

namespace corvina {

class Historicos {
  public:
    virtual ~Historicos() = default;
    // Names are matched without regard to case, as the store's keys are.
    virtual HistoricoDePartidas historico(const std::string& nome) = 0;
    virtual void apagaHistorico(const std::string& nome) = 0;
    // Every history of these players, at once.
    virtual void zeraHistoricos(const std::vector<std::string>& nomes) = 0;
};

} // namespace corvina

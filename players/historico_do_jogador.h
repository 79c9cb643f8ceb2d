#pragma once
// A player's history in the store, beside the record under the player's key: read, added to
// at the end of each match, and deleted with the player. A damaged history never stops the
// game: it is kept aside under a name of its own and a new one begins.

#include <string>

#include "core/armazem.h"
#include "players/historico_de_partidas.h"

namespace corvina {

HistoricoDePartidas leHistoricoDoJogador(Armazem& a, const std::string& nome);
void registraNoHistorico(Armazem& a, const std::string& nome, const PartidaDoHistorico& p);
void apagaHistoricoDoJogador(Armazem& a, const std::string& nome);
// Every listed player's history, in one write.
void zeraEstatisticas(Armazem& a);

} // namespace corvina

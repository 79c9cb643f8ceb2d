#pragma once
// A match's end kept in both places as one: the history and the record owed to the settings
// store go into the database first, the record marked as pending; then the store's batch; then
// the mark goes. Killed anywhere in between, the next start applies what is still pending.

#include <string>

#include "core/recorde.h"
#include "core/vista_mesa.h"
#include "players/arquivo_de_ajustes.h"
#include "players/banco_do_jogo.h"

namespace corvina {

// `dia` counts from 1 January 2000 (diaDoHistorico).
void registraFimDaPartida(ArquivoDeAjustes& ajustes, BancoDoJogo& banco, const FimDaPartida& fim,
                          int dia);

// At start, before anything reads a record or a history: the histories an earlier version kept
// in the store move into the database (and leave the store only once the database has them),
// and every record a kill left pending reaches the store, once.
void preparaDados(ArquivoDeAjustes& ajustes, BancoDoJogo& banco);

} // namespace corvina

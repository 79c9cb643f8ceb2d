#pragma once
// The kept match a player may play on, read from the game's database: only one that reads
// whole, is that player's, and can be laid out; any other is set aside there (one line on
// standard error) and the player starts anew.

#include <optional>
#include <string>

#include "core/partida_guardada.h"
#include "players/banco_do_jogo.h"

namespace corvina {

std::optional<PartidaGuardada> partidaParaRetomar(BancoDoJogo& banco, const std::string& nome);

} // namespace corvina

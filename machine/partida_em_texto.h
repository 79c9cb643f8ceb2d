#pragma once
// A kept match and a finished match's hands as text: what the game's database holds and what
// corvina-cli exports. Lines, each a word and its fields; a hand is one block of its log.
//
//   corvina-partida 1        maos 2             ordem 7/1 7/2 ...
//   jogador Ana              mao 0 0 ... fim jog
//   nivel forte              mao 1 0 ... fim mac
//   justa 1                  atual
//   placar 1 1               mao 1 1 ... fim emjogo

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/partida_guardada.h"

namespace corvina {

// Refused unread beyond this: a kept match is a few kilobytes.
inline constexpr std::size_t kMaiorPartidaEmTexto = 512 * 1024;

std::string escrevePartida(const PartidaGuardada& p);
// Only a text that reads whole, in its version; whether it can be played on is confere()'s.
std::optional<PartidaGuardada> lePartida(std::string_view texto);

// The hands of a finished match, one block each.
std::string escreveMaos(const std::vector<RegistroDaMao>& maos);
std::optional<std::vector<RegistroDaMao>> leMaos(std::string_view texto);

} // namespace corvina

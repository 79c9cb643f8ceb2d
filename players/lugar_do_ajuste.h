#pragma once
// Where a value of the store lives in the per-user settings file. Keys and names are matched
// without regard to case, and a player's name is data: whatever characters it holds, it is
// written so that the file can't read it as a path, a section or another player's key.

#include <string>
#include <string_view>

namespace corvina {

struct LugarDoAjuste {
    std::string grupo; // "corvina", "jogadores/<name>" or "outras/<key>"
    std::string nome;
};

LugarDoAjuste lugarDoAjuste(std::string_view chave, std::string_view nome);

// Lower-case letters, digits and '_' stand for themselves; any other byte is "%XX".
std::string codifica(std::string_view texto);
// The bytes behind codifica's text; "%xx" in small letters too.
std::string decodifica(std::string_view texto);

// The one spelling of a key read from the file, whatever capitals or codes a hand gave it:
// each part decoded, folded and coded again, so that "Corvina/Jogador1" is "corvina/jogador1".
std::string chaveCanonica(std::string_view chave);

} // namespace corvina

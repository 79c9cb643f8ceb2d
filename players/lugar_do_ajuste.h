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

} // namespace corvina

#pragma once
// Names of players and keys compared without regard to capitals, in any alphabet.

#include <string>
#include <string_view>

namespace corvina {

// Each letter in the same case, the Unicode way: "Œ" and "œ", "Ω" and "ω" fold alike. Bytes
// that are not UTF-8 stay as they are.
std::string dobraNome(std::string_view texto);

// Without blanks at either end.
std::string aparaBrancos(std::string_view texto);

} // namespace corvina

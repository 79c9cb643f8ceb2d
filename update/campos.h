#pragma once
// The text rules of the update server's answer.

#include <string>
#include <string_view>

namespace corvina {

inline constexpr const char* kDelimitador = "!*!";

// The nth field (from 1) of texto, fields separated by delimitador; a delimiter is added in
// front and behind where there is none. "" when there is no such field.
std::string campo(std::string_view texto, std::string_view delimitador, int n);

// Every occurrence of procurado replaced by novo. A novo that holds procurado is refused: the
// text comes back unchanged.
std::string troca(std::string_view texto, std::string_view procurado, std::string_view novo);

} // namespace corvina

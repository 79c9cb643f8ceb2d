#pragma once
// corvina-cli's requests: one JSON object in, one JSON object out.

#include <string>
#include <string_view>

namespace corvina::cli {

// Far beyond any request of this tool (a hall of fame of fifty players is some 5 KB).
inline constexpr std::size_t kMaiorLinha = 1024 * 1024;

// Answers one line. Never throws: a bad request gets {"error": "..."} and changes nothing.
std::string responde(std::string_view linha);

extern const char* const kAjuda;

} // namespace corvina::cli

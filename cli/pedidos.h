#pragma once
// corvina-cli's requests: one JSON object in, one JSON object out.

#include <string>
#include <string_view>

namespace corvina::cli {

// Answers one line. Never throws: a bad request gets {"error": "..."} and changes nothing.
std::string responde(std::string_view linha);

extern const char* const kAjuda;

} // namespace corvina::cli

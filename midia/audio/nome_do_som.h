#pragma once
// From the names the game calls its sounds by ("\Cart1.wav", "\delete.wav ") to a file in the
// sound folder of a file system that tells capitals apart.

#include <filesystem>
#include <optional>
#include <string_view>

namespace corvina {

// The leading backslash and trailing blanks are dropped, as the platform the names were
// written for drops them; an exact match wins, else any file whose name differs only in
// capitals. Only regular files are found.
std::optional<std::filesystem::path> arquivoDoSom(const std::filesystem::path& pasta,
                                                  std::string_view literal);

} // namespace corvina

#pragma once
// highcor.dat: ten quoted names and ten numbers, made at the first start and read at each;
// nothing else in the game uses it.

#include <array>
#include <string>

namespace corvina {

struct Highcor {
    std::array<std::string, 10> nomesArquivo;
    std::array<long, 10> pontosArquivo{};
};

// Creates the file if missing, fills an empty one with its 21 lines, and reads it. A folder
// that can't be written, or a file that is not a small regular file, leaves an empty table,
// and the file is left as it was.
Highcor preparaHighcor(const std::string& pasta);

} // namespace corvina

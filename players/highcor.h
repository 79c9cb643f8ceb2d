#pragma once
// highcor.dat: ten quoted names and ten numbers, made at the first start and read at each;
// nothing else in the game uses it.

#include <QString>
#include <array>
#include <string>

namespace corvina {

struct Highcor {
    std::array<std::string, 10> nomesArquivo;
    std::array<long, 10> pontosArquivo{};
};

// The per-user data folder: the program's own folder may not be writable.
QString pastaDoHighcor();

// Creates the file if missing, fills an empty one with its 21 lines, and reads it. A folder
// that can't be written leaves an empty table and the game goes on.
Highcor preparaHighcor(const QString& pasta);

} // namespace corvina

#pragma once
// The program's version as the check and the player read it, and which of two is newer.

#include <string>
#include <string_view>

namespace corvina {

struct Versao {
    int major = 0, minor = 0, revisao = 0;
};

// This program's version, set where the build names it.
Versao versaoDoPrograma();

// "3.7.4": always three numbers.
std::string versaoParaChecagem(Versao v);
// "3.7.4", but "3.7" when the revision is 0.
std::string versaoParaUsuario(Versao v);

// Whether remota counts as newer: each version becomes major*100 + minor*10 + revision, written
// in decimal, and the texts are compared character by character. So 3.7.10 equals 3.8.0, and
// 10.0.0 ("1000") comes before 3.7.4 ("374") and is never offered.
bool MaiorVersion(std::string_view vLocal, std::string_view vRemota);

} // namespace corvina

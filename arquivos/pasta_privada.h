#pragma once
// Folders that only this user can enter, for files that the program writes and reads back:
// in a folder shared with others, another user's file or a pipe could stand at the name.

#include <string>

namespace corvina {

// True when `caminho` is a folder itself (not a link to one), owned by this user, and closed to
// everybody else.
bool pastaSoMinha(const std::string& caminho);

// The first of these that is private: `temp` as given; `runtime` + "/corvina", made when it
// is absent; otherwise a fresh folder of our own under `sistema`. "" when none can be had.
std::string escolhePastaPrivada(const std::string& temp, const std::string& runtime,
                                const std::string& sistema);

} // namespace corvina

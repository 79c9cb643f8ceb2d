#pragma once
// How the privileged helper that installs an update answers the game: its exit code.

namespace corvina {

// 0 installed; anything else refused, and nothing installed. Every way a package can't be
// reached is one answer, Inacessivel, so that the answers tell nothing of the files the user
// can't see.
enum class Desfecho : int {
    Instalado = 0,
    Argumentos = 2,
    Inacessivel = 3,
    SemCopia = 7,
    NaoAssinado = 8,
    InstaladorFalhou = 9,
    NaoENova = 10,
};

// pkexec's own answers when the password was not given or the action not allowed.
inline constexpr int kPkexecRecusou = 126;
inline constexpr int kPkexecNaoAutorizou = 127;

} // namespace corvina

#pragma once
// What the privileged helper does with an update: it copies the package out of the user's
// reach, checks the copy's signature, and only then hands the copy to the package installer.
// Whatever the user's processes do to their own file after that, root installs what it checked.

#include <sys/types.h>

#include <string>
#include <vector>

namespace corvina {

struct AmbienteDoInstalador {
    uid_t usuario = 0;                   // who asked for the update
    std::string casa;                    // that user's home: the package must lie below it
    std::string pastaSegura;             // a folder only the helper's user can write
    std::string chavePublica;            // the Ed25519 key, 64 hex digits, that signs the packages
    std::vector<std::string> instalador; // program (absolute path) and arguments; the copy's
                                         // path is added last
};

// Exit codes: 0 installed; anything else refused, and nothing installed.
enum class Desfecho : int {
    Instalado = 0,
    Argumentos = 2,
    ForaDaCasa = 3,
    NaoRegular = 4,
    DeOutroDono = 5,
    Grande = 6,
    SemCopia = 7,
    NaoAssinado = 8,
    InstaladorFalhou = 9,
};

// Installs the package at `pacote` if its copy verifies against `assinaturaBase64`. A short
// line on standard error says why anything was refused.
Desfecho instalaAtualizacao(const std::string& pacote, const std::string& assinaturaBase64,
                            const AmbienteDoInstalador& ambiente);

} // namespace corvina

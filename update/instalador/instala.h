#pragma once
// What the privileged helper does with an update: it reaches the user's package without
// following any link, copies it out of the user's reach, checks the copy's signature and
// version, and only then hands the copy to the package installer. Whatever the user's processes
// do to their file after that, root installs what it checked.

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "update/desfecho_da_instalacao.h"
#include "update/versao_do_pacote.h"

namespace corvina {

struct AmbienteDoInstalador {
    uid_t usuario = 0;                   // who asked for the update
    gid_t grupo = 0;                     // that user's own group
    std::string casa;                    // that user's home: the package must lie below it
    std::string pastaSegura;             // a folder only the helper's user can write
    std::string chavePublica;            // the Ed25519 key, 64 hex digits, that signs the packages
    VersaoDoPacote instalada;            // the version now installed: only a newer one goes in
    std::vector<std::string> instalador; // program (absolute path) and arguments; the copy's
                                         // path is added last
};

// The user named by pkexec: digits only, in the range of user ids, and never root.
std::optional<uid_t> usuarioDoPkexec(std::string_view texto);

// Installs the package at `pacote`, declared as `versao`, if that version is newer than the
// installed one and its copy verifies against `assinaturaBase64`. A short line on standard
// error says why anything was refused.
Desfecho instalaAtualizacao(const std::string& pacote, std::string_view versao,
                            const std::string& assinaturaBase64,
                            const AmbienteDoInstalador& ambiente);

} // namespace corvina

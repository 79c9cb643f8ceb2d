// corvina-instala: started through pkexec by the game, installs a downloaded update as root
// after checking, on a copy of its own, that the maker signed it.

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "update/instalador/instala.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: corvina-instala PACKAGE SIGNATURE\n");
        return static_cast<int>(corvina::Desfecho::Argumentos);
    }
    // pkexec names the user who asked; run by hand, the caller is that user.
    uid_t usuario = ::getuid();
    if (const char* pk = std::getenv("PKEXEC_UID")) {
        char* fim = nullptr;
        const unsigned long n = std::strtoul(pk, &fim, 10);
        if (*pk == '\0' || *fim != '\0') return static_cast<int>(corvina::Desfecho::Argumentos);
        usuario = static_cast<uid_t>(n);
    }
    const passwd* pw = ::getpwuid(usuario);
    if (pw == nullptr || pw->pw_dir == nullptr)
        return static_cast<int>(corvina::Desfecho::ForaDaCasa);
    const corvina::AmbienteDoInstalador ambiente{usuario,
                                                 pw->pw_dir,
                                                 CORVINA_PASTA_SEGURA,
                                                 CORVINA_CHAVE_PUBLICA,
                                                 {"/usr/bin/apt-get", "install", "-y"}};
    return static_cast<int>(corvina::instalaAtualizacao(argv[1], argv[2], ambiente));
}

// corvina-instala: started through pkexec by the game, installs a downloaded update as root
// after checking, on a copy of its own, that the maker signed it and that it is newer than the
// version installed beside this helper.

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "update/instalador/instala.h"

int main(int argc, char** argv) {
    using corvina::Desfecho;
    if (argc != 4) {
        std::fprintf(stderr, "usage: corvina-instala PACKAGE VERSION SIGNATURE\n");
        return static_cast<int>(Desfecho::Argumentos);
    }
    // pkexec names the user who asked; run by hand, the caller is that user.
    uid_t usuario = ::getuid();
    if (const char* pk = std::getenv("PKEXEC_UID")) {
        const std::optional<uid_t> u = corvina::usuarioDoPkexec(pk);
        if (!u) {
            std::fprintf(stderr, "corvina-instala: PKEXEC_UID is no user; nothing was installed\n");
            return static_cast<int>(Desfecho::Argumentos);
        }
        usuario = *u;
    }
    const passwd* pw = ::getpwuid(usuario);
    const std::optional<corvina::VersaoDoPacote> instalada =
        corvina::leVersaoDoPacote(CORVINA_VERSAO_INSTALADA);
    if (pw == nullptr || pw->pw_dir == nullptr || !instalada)
        return static_cast<int>(Desfecho::Inacessivel);
    const corvina::AmbienteDoInstalador ambiente{usuario,
                                                 pw->pw_gid,
                                                 pw->pw_dir,
                                                 CORVINA_PASTA_SEGURA,
                                                 CORVINA_CHAVE_PUBLICA,
                                                 *instalada,
                                                 {"/usr/bin/apt-get", "install", "-y"}};
    return static_cast<int>(corvina::instalaAtualizacao(argv[1], argv[2], argv[3], ambiente));
}

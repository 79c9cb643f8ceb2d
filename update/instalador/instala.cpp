#include "update/instalador/instala.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "arquivos/pasta_privada.h"
#include "update/assinatura.h"
#include "update/instalador/caminho_seguro.h"

namespace corvina {

namespace {

Desfecho recusa(Desfecho d, const char* porque) {
    std::fprintf(stderr, "corvina-instala: %s; nothing was installed\n", porque);
    return d;
}

// Copies at most `limite` bytes; false when the file holds more, or anything fails.
bool copia(int de, const std::string& para, std::size_t limite) {
    const Descritor d(
        ::open(para.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!d) return false;
    char buf[65536];
    std::size_t total = 0;
    for (;;) {
        const ssize_t n = ::read(de, buf, sizeof buf);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return false;
        if (n == 0) break;
        total += static_cast<std::size_t>(n);
        if (total > limite) return false;
        for (ssize_t feito = 0; feito < n;) {
            const ssize_t m = ::write(d.fd(), buf + feito, static_cast<std::size_t>(n - feito));
            if (m < 0 && errno == EINTR) continue;
            if (m <= 0) return false;
            feito += m;
        }
    }
    return ::fsync(d.fd()) == 0;
}

// Runs the installer without a shell and with a plain environment; true when it succeeded.
bool roda(const std::vector<std::string>& comando, const std::string& pacote) {
    std::vector<std::string> partes = comando;
    partes.push_back(pacote);
    std::vector<char*> argv;
    for (std::string& p : partes) argv.push_back(p.data());
    argv.push_back(nullptr);
    char caminho[] = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
    char interface[] = "DEBIAN_FRONTEND=noninteractive";
    char* envp[] = {caminho, interface, nullptr};
    const pid_t filho = ::fork();
    if (filho < 0) return false;
    if (filho == 0) {
        ::execve(argv[0], argv.data(), envp);
        ::_exit(127);
    }
    int estado = 0;
    while (::waitpid(filho, &estado, 0) < 0)
        if (errno != EINTR) return false;
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

} // namespace

std::optional<uid_t> usuarioDoPkexec(std::string_view texto) {
    constexpr std::size_t kMaisDigitos = 10; // 4294967295
    if (texto.empty() || texto.size() > kMaisDigitos) return std::nullopt;
    unsigned long long n = 0;
    for (const char c : texto) {
        if (c < '0' || c > '9') return std::nullopt;
        n = n * 10 + static_cast<unsigned>(c - '0');
    }
    // (uid_t)-1 is no user: it is how the system says "unchanged".
    if (n == 0 || n >= std::numeric_limits<uid_t>::max()) return std::nullopt;
    return static_cast<uid_t>(n);
}

Desfecho instalaAtualizacao(const std::string& pacote, std::string_view versao,
                            const std::string& assinaturaBase64,
                            const AmbienteDoInstalador& ambiente) {
    if (pacote.empty() || pacote[0] != '/' || ambiente.instalador.empty() ||
        ambiente.instalador[0].empty() || ambiente.instalador[0][0] != '/')
        return recusa(Desfecho::Argumentos, "the package and the installer need absolute paths");
    const std::optional<VersaoDoPacote> nova = leVersaoDoPacote(versao);
    if (!nova) return recusa(Desfecho::Argumentos, "the version is not three numbers");
    // A rollback to an older signed package is refused before anything is read.
    if (*nova <= ambiente.instalada)
        return recusa(Desfecho::NaoENova, "the package is not newer than the installed version");

    const Descritor arquivo =
        abreArquivoDoUsuario(ambiente.casa, pacote, {ambiente.usuario, ambiente.grupo});
    if (!arquivo)
        return recusa(Desfecho::Inacessivel,
                      "the package is not a regular file of the user's in the user's folders");

    // The copy lies where the user can't reach it; what is checked is what gets installed.
    ::mkdir(ambiente.pastaSegura.c_str(), 0700);
    if (!pastaSoMinha(ambiente.pastaSegura))
        return recusa(Desfecho::SemCopia, "no safe folder for the copy");
    std::string modelo = ambiente.pastaSegura + "/atualizacao-XXXXXX";
    if (::mkdtemp(modelo.data()) == nullptr)
        return recusa(Desfecho::SemCopia, "no safe folder for the copy");
    const std::string copiaDoPacote = modelo + "/corvina.deb";
    Desfecho d = Desfecho::Instalado;
    if (!copia(arquivo.fd(), copiaDoPacote, kMaiorInstalador))
        d = recusa(Desfecho::SemCopia, "the package could not be copied");
    else if (!assinaturaConfere(copiaDoPacote, versao, assinaturaBase64, ambiente.chavePublica))
        d = recusa(Desfecho::NaoAssinado, "the package's signature does not verify");
    else if (!roda(ambiente.instalador, copiaDoPacote))
        d = recusa(Desfecho::InstaladorFalhou, "the package installer failed");
    ::unlink(copiaDoPacote.c_str());
    ::rmdir(modelo.c_str());
    return d;
}

} // namespace corvina

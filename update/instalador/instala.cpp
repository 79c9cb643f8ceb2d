#include "update/instalador/instala.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "players/pasta_privada.h"
#include "update/assinatura.h"

namespace corvina {

namespace {

struct Descritor {
    int fd = -1;
    ~Descritor() {
        if (fd >= 0) ::close(fd);
    }
};

Desfecho recusa(Desfecho d, const char* porque) {
    std::fprintf(stderr, "corvina-instala: %s; nothing was installed\n", porque);
    return d;
}

std::string real(const std::string& caminho) {
    const std::unique_ptr<char, decltype(&std::free)> r(::realpath(caminho.c_str(), nullptr),
                                                        &std::free);
    return r ? std::string(r.get()) : std::string();
}

bool abaixoDe(const std::string& caminho, const std::string& pasta) {
    return !pasta.empty() && caminho.size() > pasta.size() + 1 &&
           caminho.compare(0, pasta.size(), pasta) == 0 && caminho[pasta.size()] == '/';
}

// Copies at most `limite` bytes; false when the file holds more, or anything fails.
bool copia(int de, const std::string& para, std::size_t limite) {
    const Descritor d{
        ::open(para.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)};
    if (d.fd < 0) return false;
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
            const ssize_t m = ::write(d.fd, buf + feito, static_cast<std::size_t>(n - feito));
            if (m < 0 && errno == EINTR) continue;
            if (m <= 0) return false;
            feito += m;
        }
    }
    return ::fsync(d.fd) == 0;
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

Desfecho instalaAtualizacao(const std::string& pacote, const std::string& assinaturaBase64,
                            const AmbienteDoInstalador& ambiente) {
    if (pacote.empty() || pacote[0] != '/' || ambiente.instalador.empty() ||
        ambiente.instalador[0].empty() || ambiente.instalador[0][0] != '/')
        return recusa(Desfecho::Argumentos, "the package and the installer need absolute paths");

    // The package must be a file of the user's, below the user's home, reached without a link
    // at its last step.
    const std::size_t barra = pacote.rfind('/');
    const std::string nome = pacote.substr(barra + 1);
    const std::string pasta = real(barra == 0 ? "/" : pacote.substr(0, barra));
    if (nome.empty() || nome == "." || nome == ".." ||
        !abaixoDe(pasta + "/" + nome, real(ambiente.casa)))
        return recusa(Desfecho::ForaDaCasa, "the package is not in the user's folders");
    const Descritor dir{::open(pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    const Descritor arquivo{
        dir.fd < 0 ? -1
                   : ::openat(dir.fd, nome.c_str(),
                              O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)};
    struct stat st {};
    if (arquivo.fd < 0 || ::fstat(arquivo.fd, &st) != 0 || !S_ISREG(st.st_mode))
        return recusa(Desfecho::NaoRegular, "the package is not a regular file");
    if (st.st_uid != ambiente.usuario)
        return recusa(Desfecho::DeOutroDono, "the package does not belong to the user");
    if (static_cast<std::size_t>(st.st_size) > kMaiorInstalador)
        return recusa(Desfecho::Grande, "the package is too large");

    // The copy lies where the user can't reach it; what is checked is what gets installed.
    ::mkdir(ambiente.pastaSegura.c_str(), 0700);
    if (!pastaSoMinha(ambiente.pastaSegura))
        return recusa(Desfecho::SemCopia, "no safe folder for the copy");
    std::string modelo = ambiente.pastaSegura + "/atualizacao-XXXXXX";
    if (::mkdtemp(modelo.data()) == nullptr)
        return recusa(Desfecho::SemCopia, "no safe folder for the copy");
    const std::string copiaDoPacote = modelo + "/corvina.deb";
    Desfecho d = Desfecho::Instalado;
    if (!copia(arquivo.fd, copiaDoPacote, kMaiorInstalador))
        d = recusa(Desfecho::SemCopia, "the package could not be copied");
    else if (!assinaturaConfere(copiaDoPacote, assinaturaBase64, ambiente.chavePublica))
        d = recusa(Desfecho::NaoAssinado, "the package's signature does not verify");
    else if (!roda(ambiente.instalador, copiaDoPacote))
        d = recusa(Desfecho::InstaladorFalhou, "the package installer failed");
    ::unlink(copiaDoPacote.c_str());
    ::rmdir(modelo.c_str());
    return d;
}

} // namespace corvina

#include "update/instalador/caminho_seguro.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace corvina {

namespace {

inline constexpr int kSoOLugar = O_PATH | O_NOFOLLOW | O_CLOEXEC;

// The user's home as the system names it. Its folders above belong to root, which is trusted;
// from the home down, nothing is.
std::string real(const std::string& caminho) {
    const std::unique_ptr<char, decltype(&std::free)> r(::realpath(caminho.c_str(), nullptr),
                                                        &std::free);
    return r ? std::string(r.get()) : std::string();
}

// The names below the home, one per folder and the file's last; empty when the path doesn't lie
// below it or takes a step that isn't a plain name.
std::vector<std::string> passosAbaixoDe(const std::string& casa, const std::string& arquivo) {
    if (casa.empty() || arquivo.size() <= casa.size() + 1 ||
        arquivo.compare(0, casa.size(), casa) != 0 || arquivo[casa.size()] != '/')
        return {};
    std::vector<std::string> passos;
    std::string_view resto(arquivo);
    resto.remove_prefix(casa.size() + 1);
    for (;;) {
        const std::size_t barra = resto.find('/');
        const std::string_view nome = resto.substr(0, barra);
        if (nome.empty() || nome == "." || nome == "..") return {};
        passos.emplace_back(nome);
        if (barra == std::string_view::npos) return passos;
        resto.remove_prefix(barra + 1);
    }
}

// A folder the user may keep a package in: a real folder, the user's or root's, that nobody
// else may write into.
bool pastaDoUsuario(const struct stat& st, DonoDoArquivo dono) {
    if (!S_ISDIR(st.st_mode)) return false;
    if (st.st_uid != dono.usuario && st.st_uid != 0) return false;
    if (st.st_mode & S_IWOTH) return false;
    return !(st.st_mode & S_IWGRP) || st.st_gid == dono.grupo;
}

bool estado(int fd, struct stat& st) {
    return ::fstat(fd, &st) == 0;
}

} // namespace

Descritor abreArquivoDoUsuario(const std::string& casa, const std::string& arquivo,
                               DonoDoArquivo dono) {
    const std::string raiz = real(casa);
    const std::vector<std::string> passos = passosAbaixoDe(raiz, arquivo);
    if (passos.empty()) return {};

    struct stat st {};
    Descritor pasta(::open(raiz.c_str(), kSoOLugar | O_DIRECTORY));
    if (!pasta || !estado(pasta.fd(), st) || !pastaDoUsuario(st, dono)) return {};
    for (std::size_t i = 0; i + 1 < passos.size(); ++i) {
        Descritor dentro(::openat(pasta.fd(), passos[i].c_str(), kSoOLugar | O_DIRECTORY));
        if (!dentro || !estado(dentro.fd(), st) || !pastaDoUsuario(st, dono)) return {};
        pasta = std::move(dentro);
    }
    // With O_PATH and no following, a link is opened as itself and fails the test below.
    const Descritor lugar(::openat(pasta.fd(), passos.back().c_str(), kSoOLugar));
    if (!lugar || !estado(lugar.fd(), st) || !S_ISREG(st.st_mode) || st.st_uid != dono.usuario)
        return {};

    // Opened for reading through the descriptor already checked, never by its name again.
    const std::string proprio = "/proc/self/fd/" + std::to_string(lugar.fd());
    Descritor leitura(::open(proprio.c_str(), O_RDONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    struct stat aberto {};
    if (!leitura || !estado(leitura.fd(), aberto) || !S_ISREG(aberto.st_mode) ||
        aberto.st_dev != st.st_dev || aberto.st_ino != st.st_ino)
        return {};
    return leitura;
}

} // namespace corvina

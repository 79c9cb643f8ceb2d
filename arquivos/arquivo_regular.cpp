#include "arquivos/arquivo_regular.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "arquivos/descritor.h"

namespace corvina {

ArquivoLido leArquivoRegular(const std::string& caminho, std::size_t limite) {
    ArquivoLido lido;
    const Descritor d{::open(caminho.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)};
    if (d.fd() < 0) {
        lido.situacao = errno == ENOENT ? SituacaoDoArquivo::Ausente : SituacaoDoArquivo::Ilegivel;
        return lido;
    }
    struct stat st {};
    if (::fstat(d.fd(), &st) != 0) {
        lido.situacao = SituacaoDoArquivo::Ilegivel;
        return lido;
    }
    if (!S_ISREG(st.st_mode)) {
        lido.situacao = SituacaoDoArquivo::NaoRegular;
        return lido;
    }
    lido.identidade = {st.st_dev, st.st_ino, st.st_size, st.st_mtim};
    if (static_cast<std::size_t>(st.st_size) > limite) {
        lido.situacao = SituacaoDoArquivo::Grande;
        return lido;
    }
    char buf[4096];
    for (;;) {
        const ssize_t n = ::read(d.fd(), buf, sizeof buf);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            lido.situacao = SituacaoDoArquivo::Ilegivel;
            lido.conteudo.clear();
            return lido;
        }
        if (n == 0) break;
        lido.conteudo.append(buf, static_cast<std::size_t>(n));
        if (lido.conteudo.size() > limite) { // it grew while being read
            lido.situacao = SituacaoDoArquivo::Grande;
            lido.conteudo.clear();
            return lido;
        }
    }
    lido.situacao = SituacaoDoArquivo::Lido;
    return lido;
}

bool gravaArquivoRegular(const std::string& caminho, const std::string& conteudo) {
    const Descritor d{
        ::open(caminho.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0644)};
    if (d.fd() < 0) return false;
    struct stat st {};
    if (::fstat(d.fd(), &st) != 0 || !S_ISREG(st.st_mode) || ::ftruncate(d.fd(), 0) != 0)
        return false;
    for (std::size_t feito = 0; feito < conteudo.size();) {
        const ssize_t n = ::write(d.fd(), conteudo.data() + feito, conteudo.size() - feito);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        feito += static_cast<std::size_t>(n);
    }
    return true;
}

} // namespace corvina

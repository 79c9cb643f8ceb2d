#include "update/assinatura.h"

#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace corvina {

namespace {
struct Aberto {
    int fd;
    ~Aberto() {
        if (fd >= 0) ::close(fd);
    }
};
} // namespace

std::string declaracaoDoPacote(std::string_view versao, std::string_view sha512Hex) {
    std::string d = "Corvina ";
    d.append(versao).append("\nsha512 ").append(sha512Hex).append("\n");
    return d;
}

std::optional<std::string> sha512DoArquivo(const std::string& arquivo) {
    if (sodium_init() < 0) return std::nullopt;
    const Aberto a{::open(arquivo.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)};
    struct stat st {};
    if (a.fd < 0 || ::fstat(a.fd, &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
    crypto_hash_sha512_state estado;
    crypto_hash_sha512_init(&estado);
    unsigned char buf[65536];
    std::size_t total = 0;
    for (;;) {
        const ssize_t n = ::read(a.fd, buf, sizeof buf);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return std::nullopt;
        if (n == 0) break;
        total += static_cast<std::size_t>(n);
        if (total > kMaiorInstalador) return std::nullopt; // it grew past any installer
        crypto_hash_sha512_update(&estado, buf, static_cast<unsigned long long>(n));
    }
    unsigned char resumo[crypto_hash_sha512_BYTES];
    crypto_hash_sha512_final(&estado, resumo);
    char hex[2 * sizeof resumo + 1];
    sodium_bin2hex(hex, sizeof hex, resumo, sizeof resumo);
    return std::string(hex);
}

bool assinaturaConfere(const std::string& arquivo, std::string_view versao,
                       std::string_view assinaturaBase64, std::string_view chavePublicaHex) {
    if (sodium_init() < 0) return false;
    unsigned char chave[crypto_sign_PUBLICKEYBYTES];
    std::size_t tamanho = 0;
    if (chavePublicaHex.size() != 2 * sizeof chave ||
        sodium_hex2bin(chave, sizeof chave, chavePublicaHex.data(), chavePublicaHex.size(), nullptr,
                       &tamanho, nullptr) != 0 ||
        tamanho != sizeof chave)
        return false;
    unsigned char assinatura[crypto_sign_BYTES];
    if (sodium_base642bin(assinatura, sizeof assinatura, assinaturaBase64.data(),
                          assinaturaBase64.size(), nullptr, &tamanho, nullptr,
                          sodium_base64_VARIANT_ORIGINAL) != 0 ||
        tamanho != sizeof assinatura)
        return false;
    const std::optional<std::string> resumo = sha512DoArquivo(arquivo);
    if (!resumo) return false;
    const std::string declaracao = declaracaoDoPacote(versao, *resumo);
    return crypto_sign_verify_detached(assinatura,
                                       reinterpret_cast<const unsigned char*>(declaracao.data()),
                                       declaracao.size(), chave) == 0;
}

} // namespace corvina

#include "update/assinatura.h"

#include <sodium.h>

#include <vector>

#include "players/arquivo_regular.h"

namespace corvina {

bool assinaturaConfere(const std::string& arquivo, std::string_view assinaturaBase64,
                       std::string_view chavePublicaHex) {
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
    const ArquivoLido lido = leArquivoRegular(arquivo, kMaiorInstalador);
    if (lido.situacao != SituacaoDoArquivo::Lido) return false;
    return crypto_sign_verify_detached(assinatura,
                                       reinterpret_cast<const unsigned char*>(lido.conteudo.data()),
                                       lido.conteudo.size(), chave) == 0;
}

} // namespace corvina

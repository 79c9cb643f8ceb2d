#pragma once
// A throwaway Ed25519 key pair for the tests of the update: made fresh, kept nowhere.

#include <sodium.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace corvina::teste {

struct ChaveDeTeste {
    unsigned char publica[crypto_sign_PUBLICKEYBYTES], secreta[crypto_sign_SECRETKEYBYTES];

    ChaveDeTeste() {
        if (sodium_init() < 0) std::abort();
        crypto_sign_keypair(publica, secreta);
    }
    // The signature of `dados` in base64, as the server's answer carries it.
    std::string assina(std::string_view dados) const {
        unsigned char sig[crypto_sign_BYTES];
        crypto_sign_detached(sig, nullptr, reinterpret_cast<const unsigned char*>(dados.data()),
                             dados.size(), secreta);
        char b64[sodium_base64_ENCODED_LEN(crypto_sign_BYTES, sodium_base64_VARIANT_ORIGINAL)];
        sodium_bin2base64(b64, sizeof b64, sig, sizeof sig, sodium_base64_VARIANT_ORIGINAL);
        return b64;
    }
    // The signature of a package's contents declared as `versao`, as the release script makes
    // it: the version and the contents' SHA-512.
    std::string assinaPacote(std::string_view versao, std::string_view conteudo) const {
        unsigned char resumo[crypto_hash_sha512_BYTES];
        crypto_hash_sha512(resumo, reinterpret_cast<const unsigned char*>(conteudo.data()),
                           conteudo.size());
        char hex[2 * sizeof resumo + 1];
        sodium_bin2hex(hex, sizeof hex, resumo, sizeof resumo);
        return assina("Corvina " + std::string(versao) + "\nsha512 " + hex + "\n");
    }
    // The public half, 64 hex digits, as the build takes it.
    std::string publicaHex() const {
        char hex[2 * crypto_sign_PUBLICKEYBYTES + 1];
        sodium_bin2hex(hex, sizeof hex, publica, sizeof publica);
        return hex;
    }
};

} // namespace corvina::teste

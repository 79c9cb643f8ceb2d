#pragma once
// The installer is started only if its Ed25519 signature verifies against the public key built
// into the program.

#include <string>
#include <string_view>

namespace corvina {

// The largest installer the program will read to check; a package of the game is far smaller.
inline constexpr std::size_t kMaiorInstalador = 256u * 1024 * 1024;

// True when `assinaturaBase64` is the Ed25519 signature of the whole file by the key whose
// public half is `chavePublicaHex` (64 hex digits). A key, a signature or a file that can't be
// read is never good.
bool assinaturaConfere(const std::string& arquivo, std::string_view assinaturaBase64,
                       std::string_view chavePublicaHex);

} // namespace corvina

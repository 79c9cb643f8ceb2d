#pragma once
// An update is started only if the maker signed it: an Ed25519 signature, by the key built into
// the program, of a short declaration that names the package's version and its SHA-512. The
// version is signed with the file, so an older signed package can't pass for a newer one.

#include <optional>
#include <string>
#include <string_view>

namespace corvina {

// The largest installer the program will read to check; a package of the game is far smaller.
inline constexpr std::size_t kMaiorInstalador = 256u * 1024 * 1024;

// What the maker signs: "Corvina <version>\nsha512 <128 hex digits>\n".
std::string declaracaoDoPacote(std::string_view versao, std::string_view sha512Hex);

// The SHA-512 of a regular file of at most kMaiorInstalador bytes, in lower-case hex, read in
// pieces; nothing when it can't be read.
std::optional<std::string> sha512DoArquivo(const std::string& arquivo);

// True when `assinaturaBase64` signs the declaration of `versao` and of the file's contents by
// the key whose public half is `chavePublicaHex` (64 hex digits). A key, a signature or a file
// that can't be read is never good.
bool assinaturaConfere(const std::string& arquivo, std::string_view versao,
                       std::string_view assinaturaBase64, std::string_view chavePublicaHex);

} // namespace corvina

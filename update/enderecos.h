#pragma once
// Where the update comes from and how it is installed: set once, when the game is built
// (CMake options CORVINA_SERVIDOR_UPDATE, CORVINA_SITE, CORVINA_CHAVE_PUBLICA,
// CORVINA_AJUDANTE), so that a packager can point them elsewhere.

namespace corvina::enderecos {

// The update server's folder, ending in a slash; the request is update.php?prog=<title>.
inline constexpr const char* kServidorUpdate = CORVINA_SERVIDOR_UPDATE;
// The maker's site, ending in a slash.
inline constexpr const char* kSite = CORVINA_SITE;
inline constexpr const char* kFaleConosco = "html/faleconosco.html";
// The public half of the key that signs the installers, 64 hex digits; with none, no
// installer is ever started.
inline constexpr const char* kChavePublica = CORVINA_CHAVE_PUBLICA;
// The privileged helper that checks the package again, as root, and installs it; started
// through pkexec with the package's path and its signature.
inline constexpr const char* kAjudante = CORVINA_AJUDANTE;
inline constexpr const char* kPkexec = "/usr/bin/pkexec";

} // namespace corvina::enderecos

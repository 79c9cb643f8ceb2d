#pragma once
// What the check makes of the update server's answer.

#include <string>
#include <string_view>

namespace corvina {

// The body of a text answer as the check reads it: its last line, followed by CR LF; "" for
// nothing. Lines end at CR, LF or CR LF.
std::string ultimaLinha(std::string_view conteudo);

// From the answer and the version for the check: a message for the player, or "!*!Link"
// followed by the answer when the server offers a newer version.
std::string avaliaResposta(std::string_view resposta, std::string_view versaoLocal,
                           std::string_view titulo);

} // namespace corvina

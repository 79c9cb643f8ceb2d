#pragma once
// Small helpers on paths that the windows share.

#include <string>
#include <string_view>

namespace corvina {

// The part before the first NUL character, or the whole text.
std::string TiraNulo(std::string_view texto);

// The short form of a path. This platform has no other form: the path goes on unchanged.
std::string CaminhoCurto(std::string_view caminho);

// A folder without a separator at its end; file names of sounds bring their own.
std::string semSeparadorFinal(std::string pasta);

} // namespace corvina

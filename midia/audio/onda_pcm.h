#pragma once
// The PCM samples of a RIFF WAVE file, read from its bytes; anything else is not a sound.

#include <cstdint>
#include <optional>
#include <string_view>

namespace corvina {

struct OndaPcm {
    int canais = 0;          // 1 or 2
    int taxa = 0;            // samples a second
    int bitsPorAmostra = 0;  // 8 or 16
    std::size_t inicio = 0;  // where the samples begin in the bytes
    std::size_t tamanho = 0; // how many bytes of samples there are, whole frames only

    int milissegundos() const;
};

// Only plain PCM of 8 or 16 bits, one or two channels, at 8 to 192 kHz. A data chunk that says
// it is longer than the file is cut to what is there.
std::optional<OndaPcm> leOndaPcm(std::string_view bytes);

} // namespace corvina

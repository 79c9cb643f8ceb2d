#include "update/versao_do_pacote.h"

namespace corvina {

namespace {
inline constexpr std::size_t kMaisDigitos = 4;
} // namespace

std::optional<VersaoDoPacote> leVersaoDoPacote(std::string_view texto) {
    int partes[3] = {};
    std::size_t i = 0;
    for (int n = 0; n < 3; ++n) {
        if (n > 0) {
            if (i >= texto.size() || texto[i] != '.') return std::nullopt;
            ++i;
        }
        const std::size_t inicio = i;
        while (i < texto.size() && texto[i] >= '0' && texto[i] <= '9' &&
               i - inicio < kMaisDigitos) {
            partes[n] = partes[n] * 10 + (texto[i] - '0');
            ++i;
        }
        if (i == inicio) return std::nullopt;
    }
    if (i != texto.size()) return std::nullopt;
    return VersaoDoPacote{partes[0], partes[1], partes[2]};
}

std::string textoDaVersao(VersaoDoPacote v) {
    return std::to_string(v.major) + "." + std::to_string(v.minor) + "." +
           std::to_string(v.revisao);
}

} // namespace corvina

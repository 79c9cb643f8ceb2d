#include "update/campos.h"

namespace corvina {

namespace {
inline constexpr std::size_t kMaiorTroca = 1 << 20;
} // namespace

std::string campo(std::string_view texto, std::string_view delimitador, int n) {
    if (delimitador.empty() || n < 1) return {};
    std::string t(texto);
    if (!t.starts_with(delimitador)) t.insert(0, delimitador);
    if (!t.ends_with(delimitador)) t += delimitador;
    std::size_t inicio = 0;
    for (int i = 1; i < n; ++i) {
        inicio = t.find(delimitador, inicio + delimitador.size());
        if (inicio == std::string::npos) return {};
    }
    const std::size_t de = inicio + delimitador.size();
    const std::size_t ate = t.find(delimitador, de);
    if (ate == std::string::npos) return {};
    return t.substr(de, ate - de);
}

std::string troca(std::string_view texto, std::string_view procurado, std::string_view novo) {
    std::string t(texto);
    // The replacement would be found again for ever.
    if (procurado.empty() || novo.find(procurado) != std::string_view::npos) return t;
    // Each turn looks again from the start, so that an occurrence made by a replacement and
    // the text before it is replaced too. A text that grows past any title stops the loop.
    for (std::size_t at = t.find(procurado); at != std::string::npos && t.size() <= kMaiorTroca;
         at = t.find(procurado))
        t.replace(at, procurado.size(), novo);
    return t;
}

} // namespace corvina

#include "update/campos.h"

namespace corvina {

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
    for (std::size_t at = t.find(procurado); at != std::string::npos; at = t.find(procurado, at)) {
        t.replace(at, procurado.size(), novo);
        at += novo.size();
    }
    return t;
}

} // namespace corvina

#include "core/caminhos.h"

namespace corvina {

std::string TiraNulo(std::string_view texto) {
    return std::string(texto.substr(0, texto.find('\0')));
}

std::string CaminhoCurto(std::string_view caminho) {
    return TiraNulo(caminho);
}

std::string semSeparadorFinal(std::string pasta) {
    while (pasta.size() > 1 && (pasta.back() == '/' || pasta.back() == '\\')) pasta.pop_back();
    return pasta;
}

} // namespace corvina

#include "update/versao.h"

#include <algorithm>

#include "core/ajustes.h"
#include "update/campos.h"

namespace corvina {

namespace {
// Far beyond any version, and the sum below can't overflow.
inline constexpr long kTeto = 1'000'000'000;

long parte(std::string_view versao, int n) {
    return std::clamp(numeroDoTexto(campo(versao, ".", n)), -kTeto, kTeto);
}

std::string comoTexto(std::string_view versao) {
    return std::to_string(parte(versao, 1) * 100 + parte(versao, 2) * 10 + parte(versao, 3));
}
} // namespace

Versao versaoDoPrograma() {
    return {CORVINA_VERSAO_MAJOR, CORVINA_VERSAO_MINOR, CORVINA_VERSAO_REVISAO};
}

std::string versaoParaChecagem(Versao v) {
    return std::to_string(v.major) + "." + std::to_string(v.minor) + "." +
           std::to_string(v.revisao);
}

std::string versaoParaUsuario(Versao v) {
    std::string t = std::to_string(v.major) + "." + std::to_string(v.minor);
    if (v.revisao != 0) t += "." + std::to_string(v.revisao);
    return t;
}

bool MaiorVersion(std::string_view vLocal, std::string_view vRemota) {
    return comoTexto(vRemota) > comoTexto(vLocal);
}

} // namespace corvina

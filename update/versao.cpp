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

namespace {
// The numbers joined by points.
std::string comPontos(std::initializer_list<int> partes) {
    std::string t;
    for (const int n : partes) {
        if (!t.empty()) t.push_back('.');
        t.append(std::to_string(n));
    }
    return t;
}
} // namespace

std::string versaoParaChecagem(Versao v) {
    return comPontos({v.major, v.minor, v.revisao});
}

std::string versaoParaUsuario(Versao v) {
    return v.revisao != 0 ? comPontos({v.major, v.minor, v.revisao})
                          : comPontos({v.major, v.minor});
}

bool MaiorVersion(std::string_view vLocal, std::string_view vRemota) {
    return comoTexto(vRemota) > comoTexto(vLocal);
}

} // namespace corvina

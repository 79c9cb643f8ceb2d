#include "core/trincas.h"

#include <algorithm>
#include <cstdlib>

namespace corvina {

bool valeGrupo(Carta a, Carta b, Carta c) {
    if (a.valor == b.valor && b.valor == c.valor && a.naipe != b.naipe && a.naipe != c.naipe &&
        b.naipe != c.naipe)
        return true;
    if (a.naipe != b.naipe || b.naipe != c.naipe) return false;
    if (a.valor == b.valor || a.valor == c.valor || b.valor == c.valor) return false;
    const int16 maior = std::max({a.valor, b.valor, c.valor});
    const int16 menor = std::min({a.valor, b.valor, c.valor});
    const int16 meio = static_cast<int16>(a.valor + b.valor + c.valor - maior - menor);
    if (menor + 1 == meio && meio + 1 == maior) return true;
    return maior == kRei && meio == kRei - 1 && menor == kAs;
}

bool valeDupla(Carta a, Carta b) {
    if (a.naipe != b.naipe) return a.valor == b.valor;
    if (std::abs(a.valor - b.valor) == 1) return true;
    return (a.valor == kRei && b.valor == kAs) || (a.valor == kAs && b.valor == kRei);
}

bool valeDuplaSeparada(Carta primeira, Carta segunda) {
    if (primeira.naipe != segunda.naipe) return false;
    if (std::abs(primeira.valor - segunda.valor) == 2) return true;
    if (primeira.valor == kRei && segunda.valor == 2) return true;
    return primeira.valor == kAs && segunda.valor == kRei - 1;
}

} // namespace corvina

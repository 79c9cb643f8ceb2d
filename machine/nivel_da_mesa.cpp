#include "machine/nivel_da_mesa.h"

namespace corvina {

Nivel& NivelDaMesa::escolhido() {
    if (!modulo_) return classico_;
    switch (modulo_->nivel) {
    case TipoNivel::Esperto:
        return esperto_;
    case TipoNivel::Forte:
        return forte_;
    case TipoNivel::Classico:
        break;
    }
    return classico_;
}

bool NivelDaMesa::pegaDescarte(const VisaoDoNivel& visao) {
    return escolhido().pegaDescarte(visao);
}

int16 NivelDaMesa::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    return escolhido().descarte(visao, doDescarte);
}

} // namespace corvina

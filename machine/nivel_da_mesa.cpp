#include "machine/nivel_da_mesa.h"

namespace corvina {

NivelDaMesa::NivelDaMesa() {
    for (std::size_t i = 0; i < niveis_.size(); ++i) niveis_[i] = kNiveisDoJogo[i].cria();
}

Nivel& NivelDaMesa::escolhido() {
    return *niveis_[modulo_ ? indiceDoNivel(modulo_->nivel) : 0];
}

bool NivelDaMesa::pegaDescarte(const VisaoDoNivel& visao) {
    return escolhido().pegaDescarte(visao);
}

int16 NivelDaMesa::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    return escolhido().descarte(visao, doDescarte);
}

} // namespace corvina

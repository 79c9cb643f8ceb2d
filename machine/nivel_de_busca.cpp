#include "machine/nivel_de_busca.h"

#include "core/mesa.h"

namespace corvina {

bool NivelDeBusca::pegaDescarte(const VisaoDoNivel& visao) {
    const Pesagem p = pesaCompra(visao, orcamento_);
    return !p.chances.empty() && p.chances.front().casa == 0;
}

int16 NivelDeBusca::descarte(const VisaoDoNivel& visao, bool) {
    const Pesagem p = pesaDescartes(visao, orcamento_);
    return p.chances.empty() ? kCasaCompra : p.chances.front().casa;
}

} // namespace corvina

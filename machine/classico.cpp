#include "machine/classico.h"

#include <algorithm>

#include "core/contagem_de_cartas.h"
#include "core/mesa.h"
#include "core/visao_do_nivel.h"
#include "machine/tentativas.h"

namespace corvina {

namespace {
// The nine cards the seat held before the turn; a tenth, when there is one, came in last.
std::span<const Carta> noveDe(const VisaoDoNivel& v) {
    return std::span<const Carta>(v.mao).first(std::min<std::size_t>(v.mao.size(), kCartasNaMao));
}
} // namespace

int16 Classico::pontosBase(const VisaoDoNivel& visao) {
    std::array<Carta, kCartasNaMao> nove{};
    std::ranges::copy(noveDe(visao), nove.begin());
    if (base_ < 0 || nove != baseDe_) {
        base_ = pontosDasCartas(noveDe(visao));
        baseDe_ = nove;
    }
    return base_;
}

Tentativa Classico::tentaDoTopo(const VisaoDoNivel& visao, Carta topo) {
    // The card taken is tried again, in the same nine, for the discard that follows.
    if (!topoTentado_ || topoTentado_->carta != topo || topoTentado_->nove != baseDe_)
        topoTentado_ = TopoTentado{baseDe_, topo, tentaCarta(noveDe(visao), topo, false)};
    return topoTentado_->tentativa;
}

bool Classico::pegaDescarte(const VisaoDoNivel& visao) {
    const int16 base = pontosBase(visao);
    if (!visao.topo) return false;
    return tentaDoTopo(visao, *visao.topo).melhorPontos > base;
}

int16 Classico::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    const int16 base = pontosBase(visao);
    const Carta nova = visao.mao.at(kCasaCompra - 1);
    // It took the pile's card because some slot gains: the lowest of the best goes.
    if (doDescarte) return tentaDoTopo(visao, nova).melhorCarta;
    return escolheDescarteAposCompra(noveDe(visao), nova, base);
}

} // namespace corvina

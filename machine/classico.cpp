#include "machine/classico.h"

#include <algorithm>

#include "core/visao_do_nivel.h"
#include "machine/contagem.h"
#include "machine/tentativas.h"

namespace corvina {

namespace {
// The seat's cards as the machine's slots, whichever seat it plays.
void poeMao(Mesa& m, const VisaoDoNivel& v) {
    m.qtdMac = static_cast<int16>(v.mao.size());
    for (std::size_t i = 0; i < v.mao.size(); ++i)
        poeCarta(m.macValor, m.macNaipe, static_cast<int>(i) + 1, v.mao[i]);
}
} // namespace

int16 Classico::pontosBase(const VisaoDoNivel& visao) {
    std::array<Carta, kCartasNaMao> nove{};
    std::copy_n(visao.mao.begin(), kCartasNaMao, nove.begin());
    if (base_ < 0 || nove != baseDe_) {
        poeMao(mesa_, visao);
        mesa_.qtdMac = kCartasNaMao;
        base_ = TemQuantosGrupos(mesa_, Lado::Mac);
        baseDe_ = nove;
    }
    return base_;
}

bool Classico::pegaDescarte(const VisaoDoNivel& visao) {
    const int16 base = pontosBase(visao);
    if (!visao.topo) return false;
    poeMao(mesa_, visao);
    return tentaCarta(mesa_, *visao.topo, false).melhorPontos > base;
}

int16 Classico::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    const int16 base = pontosBase(visao);
    poeMao(mesa_, visao);
    const Carta nova = visao.mao[kCasaCompra - 1];
    if (doDescarte) {
        // It took the card because some slot gains: the lowest of the best goes.
        mesa_.qtdMac = kCartasNaMao;
        return tentaCarta(mesa_, nova, false).melhorCarta;
    }
    return escolheDescarteAposCompra(mesa_, nova, base);
}

} // namespace corvina

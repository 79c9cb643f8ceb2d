#include "machine/vidente.h"

#include "core/mesa.h"
#include "machine/distancia.h"
#include "machine/esperto.h"

namespace corvina {

FonteDeMundos Vidente::mundoReal() const {
    if (real_) return [real = *real_](std::mt19937_64&) { return real; };
    Mundo real;
    const Mesa& m = jogo_->mesa;
    const bool souJog = lado_ == Lado::Jog;
    const int16 qtd = souJog ? m.qtdMac : m.qtdJog;
    for (int i = 1; i <= qtd; ++i)
        ++real.doOutro[tipoDaCarta(souJog ? cartaNa(m.macValor, m.macNaipe, i)
                                          : cartaNa(m.jogValor, m.jogNaipe, i))];
    // Position 1 up: the last is drawn first, as the playouts draw.
    for (int i = 1; i <= m.qtdBaralho; ++i)
        real.monte.push_back(
            static_cast<std::uint8_t>(tipoDaCarta(cartaNa(m.baralhoValor, m.baralhoNaipe, i))));
    return [real](std::mt19937_64&) { return real; };
}

bool Vidente::pegaDescarte(const VisaoDoNivel& visao) {
    if (!jogo_ && !real_) return Esperto().pegaDescarte(visao);
    const Pesagem p = pesaCompra(visao, orcamento_, mundoReal());
    return !p.chances.empty() && p.chances.front().casa == 0;
}

int16 Vidente::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    if (!jogo_ && !real_) return Esperto().descarte(visao, doDescarte);
    const Pesagem p = pesaDescartes(visao, orcamento_, mundoReal());
    return p.chances.empty() ? kCasaCompra : p.chances.front().casa;
}

} // namespace corvina

#include "table/dica.h"

#include <cmath>

#include "core/pecas.h"
#include "machine/forte.h"

namespace corvina {

namespace {

// How often a move won in the worlds the search played; nothing where it was not weighed.
std::string comAChance(const Pesagem& p, int16 casa) {
    if (p.mundos == 0) return "";
    for (const Chance& c : p.chances)
        if (c.casa == casa) return " (ganha " + percentual(c.ganha) + " das vezes)";
    return "";
}

} // namespace

Peca Dica::peca() const {
    switch (tipo) {
    case Tipo::Baralho:
        return peca::kCostas2;
    case Tipo::Descarte:
        return peca::kDiscartado;
    case Tipo::Carta:
        return peca::cj(casa);
    case Tipo::Nenhuma:
        break;
    }
    return peca::kVazio;
}

std::string percentual(double ganha) {
    return std::to_string(static_cast<int>(std::lround(ganha * 100))) + "%";
}

// The hint plays as the strongest level does, and tells that move's share of the worlds the
// search played: a hint never advises less than Forte would do.
Dica dicaDaVisao(const VisaoDoNivel& v, const Orcamento& orcamento) {
    Dica d;
    Forte forte;
    if (v.mao.size() == kCartasNaMao) {
        if (v.topo && forte.pegaDescarte(v)) {
            d.tipo = Dica::Tipo::Descarte;
            d.texto = "Dica: pegue " + nomeDaCartaComArtigo(*v.topo) + " do descarte" +
                      comAChance(pesaCompra(v, orcamento), 0);
        } else {
            d.tipo = Dica::Tipo::Baralho;
            d.texto = "Dica: pegue uma carta do baralho" +
                      (v.topo ? comAChance(pesaCompra(v, orcamento), kCasaCompra) : "");
        }
    } else if (v.mao.size() == kCasaCompra) {
        d.casa = forte.descarte(v, false);
        if (d.casa < 1 || d.casa > kCasaCompra) return {};
        d.tipo = Dica::Tipo::Carta;
        const Pesagem p = pesaDescartes(v, orcamento);
        // No worlds were needed: the throw ends the hand at once.
        const bool vence = p.mundos == 0 && !p.chances.empty() && p.chances.front().casa == d.casa;
        d.texto = "Dica: descarte " +
                  nomeDaCartaComArtigo(v.mao[static_cast<std::size_t>(d.casa - 1)]) +
                  (vence ? " e vença a mão" : comAChance(p, d.casa));
    }
    return d;
}

} // namespace corvina

#include "table/dica.h"

#include "core/pecas.h"

namespace corvina {

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

Dica dicaDaVisao(const VisaoDoNivel& v, bool doDescarte, Forte& forte) {
    Dica d;
    if (v.mao.size() == kCartasNaMao) {
        if (v.topo && forte.pegaDescarte(v)) {
            d.tipo = Dica::Tipo::Descarte;
            d.texto = "Dica: pegue " + nomeDaCartaComArtigo(*v.topo) + " do descarte";
        } else {
            d.tipo = Dica::Tipo::Baralho;
            d.texto = "Dica: pegue uma carta do baralho";
        }
    } else if (v.mao.size() == kCasaCompra) {
        d.casa = forte.descarte(v, doDescarte);
        if (d.casa < 1 || d.casa > kCasaCompra) return {};
        d.tipo = Dica::Tipo::Carta;
        d.texto = "Dica: descarte " + nomeDaCartaComArtigo(v.mao[d.casa - 1]);
    }
    return d;
}

} // namespace corvina

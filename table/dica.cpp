#include "table/dica.h"

#include "core/pecas.h"
#include "core/visao_do_nivel.h"

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

Dica dicaDoJogador(const Jogo& jogo, NivelDaMesa& nivel) {
    const Mesa& m = jogo.mesa;
    if (jogo.maosEmJogo || m.animando) return {};
    Dica d;
    if (m.qtdJog == kCartasNaMao) {
        const VisaoDoNivel v = visaoDe(jogo, Lado::Jog);
        if (v.topo && nivel.fortePegaDescarte(v)) {
            d.tipo = Dica::Tipo::Descarte;
            d.texto = "Dica: pegue " + nomeDaCartaComArtigo(*v.topo) + " do descarte";
        } else {
            d.tipo = Dica::Tipo::Baralho;
            d.texto = "Dica: pegue uma carta do baralho";
        }
    } else if (m.qtdJog == kCasaCompra) {
        const VisaoDoNivel v = visaoDe(jogo, Lado::Jog);
        d.casa = nivel.forteDescarta(v, jogo.historico.topoTomado);
        if (d.casa < 1 || d.casa > kCasaCompra) return {};
        d.tipo = Dica::Tipo::Carta;
        d.texto = "Dica: descarte " + nomeDaCartaComArtigo(v.mao[d.casa - 1]);
    }
    return d;
}

} // namespace corvina

#include "machine/tentativas.h"

#include "machine/contagem.h"

namespace corvina {

Tentativa tentaCarta(Mesa& mesa, Carta nova, bool descendo) {
    Tentativa t;
    for (int passo = 0; passo < kCartasNaMao; ++passo) {
        const int i = descendo ? kCartasNaMao - passo : passo + 1;
        const Carta guardada = cartaNa(mesa.macValor, mesa.macNaipe, i);
        poeCarta(mesa.macValor, mesa.macNaipe, i, nova);
        const int16 pontosTroca = TemQuantosGrupos(mesa, Lado::Mac, true);
        poeCarta(mesa.macValor, mesa.macNaipe, i, guardada);
        if (pontosTroca > t.melhorPontos) {
            t.melhorPontos = pontosTroca;
            t.melhorCarta = static_cast<int16>(i);
        }
    }
    return t;
}

int16 escolheDescarteAposCompra(Mesa& mesa, Carta comprada, int16 pontosBase) {
    // The drawn card waits in slot 10, out of the count.
    const int16 qtd = mesa.qtdMac;
    mesa.qtdMac = kCartasNaMao;
    const Tentativa t = tentaCarta(mesa, comprada, true);
    mesa.qtdMac = qtd;
    return t.melhorPontos > pontosBase ? t.melhorCarta : kCasaCompra;
}

} // namespace corvina

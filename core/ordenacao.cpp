#include "core/ordenacao.h"

#include <algorithm>

namespace corvina {

MaoSolta tiraMao(Mesa& mesa, Lado dequem) {
    const Mao mao = maoDe(mesa, dequem);
    MaoSolta s;
    s.qtd = std::clamp<int>(mao.qtd, 0, kCasasMao - 1);
    for (int i = 0; i < s.qtd; ++i) {
        s.cartas[i] = cartaNa(mao.valor, mao.naipe, i + 1);
        s.aux[i] = cartaNa(mao.auxValor, mao.auxNaipe, i + 1);
    }
    return s;
}

void devolveMao(Mesa& mesa, Lado dequem, const MaoSolta& s) {
    Mao mao = maoDe(mesa, dequem);
    for (int i = 0; i < s.qtd; ++i) {
        poeCarta(mao.valor, mao.naipe, i + 1, s.cartas[i]);
        poeCarta(mao.auxValor, mao.auxNaipe, i + 1, s.aux[i]);
    }
}

namespace {
void ordena(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem, bool subindo) {
    MaoSolta s = tiraMao(mesa, dequem);
    ordenaCartas(s.mao(), s.rascunho(), alfa, pinta, subindo);
    devolveMao(mesa, dequem, s);
}
} // namespace

void ordenarEX(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem) {
    ordena(mesa, alfa, pinta, dequem, true);
}

void ordenarZtoA(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem) {
    ordena(mesa, alfa, pinta, dequem, false);
}

void ordenar2(Mesa& mesa) {
    mesa.modoOrdem = mesa.modoOrdem == 1 ? 2 : 1;
    // Mode 1 is value rising, then suits from hearts; mode 2 value rising only.
    ordena(mesa, mesa.modoOrdem == 1 ? kPassaPorNaipe : 0, 1, Lado::Jog, true);
}

} // namespace corvina

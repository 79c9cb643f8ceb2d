#include "machine/ordenacao.h"

#include <algorithm>

namespace corvina {

namespace {

void passaPorValor(Mao& mao, bool subindo) {
    int n = 0;
    for (int passo = 0; passo < kValores; ++passo) {
        const int16 v = static_cast<int16>(subindo ? passo + 1 : kValores - passo);
        for (int j = 1; j <= mao.qtd; ++j) {
            if (mao.valor[j] != v) continue;
            ++n;
            mao.auxValor[n] = mao.valor[j];
            mao.auxNaipe[n] = mao.naipe[j];
        }
    }
    std::copy_n(mao.auxValor.begin() + 1, mao.qtd, mao.valor.begin() + 1);
    std::copy_n(mao.auxNaipe.begin() + 1, mao.qtd, mao.naipe.begin() + 1);
}

void passaPorNaipe(Mao& mao, int16 pinta) {
    int n = 0;
    int16 s = pinta;
    for (int vez = 0; vez < kNaipes; ++vez) {
        for (int j = 1; j <= mao.qtd; ++j) {
            if (mao.naipe[j] != s) continue;
            ++n;
            mao.auxValor[n] = mao.valor[j];
            mao.auxNaipe[n] = mao.naipe[j];
        }
        s = static_cast<int16>(s % kNaipes + 1);
    }
    std::copy_n(mao.auxValor.begin() + 1, mao.qtd, mao.valor.begin() + 1);
    std::copy_n(mao.auxNaipe.begin() + 1, mao.qtd, mao.naipe.begin() + 1);
}

void ordena(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem, bool subindo) {
    Mao mao = maoDe(mesa, dequem);
    pinta = std::clamp<int16>(pinta, 1, kNaipes);
    passaPorValor(mao, subindo);
    if (alfa == kPassaPorNaipe) passaPorNaipe(mao, pinta);
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
    Mao mao = maoDe(mesa, Lado::Jog);
    passaPorValor(mao, true);
    if (mesa.modoOrdem == 1) passaPorNaipe(mao, 1);
}

} // namespace corvina

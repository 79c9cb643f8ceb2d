#include "machine/tentativas.h"

#include <algorithm>
#include <array>

#include "core/contagem_de_cartas.h"
#include "core/mesa.h"

namespace corvina {

Tentativa tentaCarta(std::span<const Carta> nove, Carta nova, bool descendo) {
    Tentativa t;
    std::array<Carta, kCartasNaMao> mao{};
    const std::size_t q = std::min<std::size_t>(nove.size(), mao.size());
    std::copy_n(nove.begin(), q, mao.begin());
    const std::span<const Carta> conta(mao.data(), q);
    for (int passo = 0; passo < static_cast<int>(q); ++passo) {
        const int i = descendo ? static_cast<int>(q) - 1 - passo : passo;
        const Carta guardada = mao[i];
        mao[i] = nova;
        const int16 pontosTroca = pontosDasCartas(conta, true);
        mao[i] = guardada;
        if (pontosTroca > t.melhorPontos) {
            t.melhorPontos = pontosTroca;
            t.melhorCarta = static_cast<int16>(i + 1);
        }
    }
    return t;
}

int16 escolheDescarteAposCompra(std::span<const Carta> nove, Carta comprada, int16 pontosBase) {
    const Tentativa t = tentaCarta(nove, comprada, true);
    return t.melhorPontos > pontosBase ? t.melhorCarta : kCasaCompra;
}

} // namespace corvina

#include "core/ordem_das_cartas.h"

#include <algorithm>

namespace corvina {

namespace {
void volta(std::span<Carta> mao, std::span<const Carta> aux) {
    std::copy_n(aux.begin(), mao.size(), mao.begin());
}
} // namespace

void passaPorValor(std::span<Carta> mao, std::span<Carta> aux, bool subindo) {
    std::size_t n = 0;
    for (int passo = 0; passo < kValores; ++passo) {
        const int16 v = static_cast<int16>(subindo ? passo + 1 : kValores - passo);
        for (const Carta c : mao)
            if (c.valor == v) aux[n++] = c;
    }
    volta(mao, aux);
}

void passaPorNaipe(std::span<Carta> mao, std::span<Carta> aux, int16 pinta) {
    std::size_t n = 0;
    int16 s = pinta;
    for (int vez = 0; vez < kNaipes; ++vez) {
        for (const Carta c : mao)
            if (c.naipe == s) aux[n++] = c;
        s = static_cast<int16>(s % kNaipes + 1);
    }
    volta(mao, aux);
}

void ordenaCartas(std::span<Carta> mao, std::span<Carta> aux, int16 alfa, int16 pinta,
                  bool subindo) {
    passaPorValor(mao, aux, subindo);
    if (alfa == kPassaPorNaipe) passaPorNaipe(mao, aux, std::clamp<int16>(pinta, 1, kNaipes));
}

void aplicaTentativa(std::span<Carta> mao, std::span<Carta> aux, int tentativa) {
    // Tries 2..4 and 9..12 sort by suit after value; the others by value alone, so that the
    // suits within a value keep the order the try before left them in.
    constexpr int kPorValor = 2;
    const int16 t = static_cast<int16>(tentativa);
    if (tentativa <= 4) {
        ordenaCartas(mao, aux, kPassaPorNaipe, t, true);
    } else if (tentativa <= 8) {
        ordenaCartas(mao, aux, kPorValor, static_cast<int16>(t - 4), true);
    } else if (tentativa <= 12) {
        ordenaCartas(mao, aux, kPassaPorNaipe, static_cast<int16>(t - 8), false);
    } else {
        ordenaCartas(mao, aux, kPorValor, static_cast<int16>(t - 12), false);
    }
}

} // namespace corvina

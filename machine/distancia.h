#pragma once
// How far a hand stands from three trincas: the fewest cards it still lacks, counting both
// copies of every card and only those copies that can still come. This is the measure of the
// levels that look ahead; the game's own count (contagem.h) still decides who wins.

#include <array>
#include <cstdint>

#include "core/carta.h"

namespace corvina {

// The 52 kinds of card, (naipe - 1) * 13 + (valor - 1); the two packs' copies share a kind.
inline constexpr int kTipos = kCartasPorBaralho;
using Copias = std::array<std::uint8_t, kTipos>; // copies of each kind, 0 to 2

constexpr int tipoDaCarta(Carta c) {
    return (c.naipe - 1) * kValores + (c.valor - 1);
}
constexpr Carta cartaDoTipo(int tipo) {
    return {static_cast<int16>(tipo % kValores + 1), static_cast<int16>(tipo / kValores + 1)};
}

inline constexpr int kCartasDasTrincas = 9;
inline constexpr int kTrincasDaVitoria = 3;

struct Distancia {
    int faltam = kCartasDasTrincas; // cards missing; 0 is three trincas in hand
    // The kinds of which one more card would bring the hand one closer (asked for only).
    std::uint64_t uteis = 0;
    // One best way to lay the hand out: how many copies of each kind it uses. With ten cards
    // at least one card stands outside it, and throwing that one costs nothing.
    Copias usadas{};
};

// `mao`: the hand's copies (nine or ten cards). `podemVir`: the copies of each kind not in the
// hand and not known to be out of reach, which alone may fill a missing place.
Distancia distancia(const Copias& mao, const Copias& podemVir, bool comUteis);

// The most cards of `outras` that one trinca holding `tipo` could take beside it: 2 when the
// card completes a trinca with them, 1 when it stands next to one of them, else 0.
int parceiras(int tipo, const Copias& outras);

} // namespace corvina

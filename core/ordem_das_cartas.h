#pragma once
// The stable passes behind every order of a hand: by value, then as a rule by suit. They work
// on cards alone, with a scratch row of the same length that holds one pass's output.

#include <span>

#include "core/carta.h"

namespace corvina {

inline constexpr int16 kPassaPorNaipe = 1; // `alfa`: any other value sorts by value only

// Value rising or falling. A card of no value (0) is dropped, and the last places keep what
// the scratch row held: the count's tries must see that too.
void passaPorValor(std::span<Carta> mao, std::span<Carta> aux, bool subindo);
// Suits from `pinta` round to the one before it; a card of no suit is dropped as above.
void passaPorNaipe(std::span<Carta> mao, std::span<Carta> aux, int16 pinta);
// The pass by value, and with alfa 1 the pass by suit starting at `pinta` (clamped to 1..4).
void ordenaCartas(std::span<Carta> mao, std::span<Carta> aux, int16 alfa, int16 pinta,
                  bool subindo);

inline constexpr int kPrimeiraTentativa = 2;
inline constexpr int kUltimaTentativa = 16;     // fifteen tries
inline constexpr int kUltimaTentativaCurta = 8; // seven tries, no falling order

// The slot order of one try of the count (2..16), from the order the try before left.
void aplicaTentativa(std::span<Carta> mao, std::span<Carta> aux, int tentativa);

} // namespace corvina

#pragma once
// The stable sorts behind the count, the sort button and the arranging of the machine's hand.

#include "core/mesa.h"

namespace corvina {

inline constexpr int16 kPassaPorNaipe = 1; // `alfa`: any other value sorts by value only

// Value rising; with alfa 1, then by suit starting at `pinta` (clamped to 1..4).
void ordenarEX(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem);
// The same with value falling.
void ordenarZtoA(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem);
// The player's hand: flips modoOrdem (0 and 2 to 1, 1 to 2); by value, and by suit at mode 1.
void ordenar2(Mesa& mesa);

} // namespace corvina

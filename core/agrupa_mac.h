#pragma once
// Laying out the machine's hand at the end of a hand, so that the player can read its groups.

#include "core/jogo.h"

namespace corvina {

// By value, and by suit within a value.
void OrdenarMac(Mesa& mesa);

// The trincas first, three after three, then the rest by suit and rising value. Borrows the
// player's arrays for the count and gives them back as they were.
void agrupaMaoDaMaquina(Mesa& mesa);

// The same, and the machine's row painted anew.
void AgrupaMac(Jogo& jogo);

} // namespace corvina

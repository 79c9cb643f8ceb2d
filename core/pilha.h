#pragma once
// The two moments of the discard pile that both sides share.

#include "core/jogo.h"

namespace corvina {

// The top is taken: it leaves on `discartado2`, and the picture under it comes back on top,
// hidden until the next discard. The pile counts one less, and never more than four after.
void tiraDaPilha(Jogo& jogo);

// A card is about to go onto the pile: the present top moves into the fan.
void abreLugarNaPilha(Jogo& jogo);

} // namespace corvina

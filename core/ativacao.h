#pragma once
// The table window's first coming to the front, and the settings it starts from.

#include "core/jogo.h"

namespace corvina {

// Reads the settings of the game from the store into Module1.
void leConfig(Jogo& jogo);

// Acts only the first time: the options on a first run ever, the choice of player, the
// first hand.
void Form_Activate(Jogo& jogo);

} // namespace corvina

#pragma once
// The end of a won hand, and of a match when a side reaches four.

#include "core/jogo.h"

namespace corvina {

// Shows the machine's cards, gives the point, opens the final score; at four points writes
// the player's record, sets the score to 0 and opens the choose-player window.
void finaliza(Jogo& jogo, Lado quem);

} // namespace corvina

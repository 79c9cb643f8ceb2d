#pragma once
// The machine's turn: take the pile or the stock, then throw one card away.

#include "core/jogo.h"

namespace corvina {

enum class FimDaVez { Descartou, AcabouBaralho };

// @pre qtdMac = 9, qtdJog = 9, qtdDescarte > 0.
// On return the machine holds nine cards and the pile's top is its discard, or the stock was
// spent and a new hand has been dealt.
FimDaVez macjoga(Jogo& jogo);

// @pre qtdMac = 10; `carta` 1..10 is the slot that goes to the pile.
void macdiscarta(Jogo& jogo, int16 carta);

} // namespace corvina

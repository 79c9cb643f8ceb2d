#pragma once
// The machine's turn on the table: its seat's player (jogo.nivel) decides whether to take the
// pile or the stock and what to throw away; this carries it out, with the flights and sounds.

#include "core/jogo.h"

namespace corvina {

enum class FimDaVez { Descartou, AcabouBaralho };

// @pre qtdMac = 9, qtdJog = 9, qtdDescarte > 0.
// On return the machine holds nine cards and the pile's top is its discard, or the stock was
// spent and a new hand has been dealt.
Tarefa<FimDaVez> macjoga(Jogo& jogo);

// @pre qtdMac = 10; `carta` 1..10 is the slot that goes to the pile.
Tarefa<> macdiscarta(Jogo& jogo, int16 carta);

} // namespace corvina

#pragma once
// The second half of the player's turn, and with it the machine's whole turn.

#include "core/jogo.h"

namespace corvina {

enum class Descarte {
    Recusado,   // not ten cards, no such slot, or a discard under way: nothing changed
    Feito,      // the machine has played; the player is to draw again
    MaoTerminou // a side won, or the stock ran out: a new hand has been dealt
};

// The card of slot `posicao` (1..10) goes to the pile; then, unless the player has won, the
// machine plays its turn inside this call and its hand is judged.
Tarefa<Descarte> descartaJog(Jogo& jogo, int16 posicao);

} // namespace corvina

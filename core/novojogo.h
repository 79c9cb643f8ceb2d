#pragma once
// Opening a hand, and the reading of the player's dealt hand.

#include <string>

#include "core/jogo.h"

namespace corvina {

// Clears the table, deals, and gives the player the first move. Never touches the score.
// A player dealt three trincas wins inside this call, and the next hand is dealt then.
// At a match's start, the player's kept match comes back instead when they want it.
void novojogo(Jogo& jogo);

// The table cleared for a hand: the pile empty, the stock squared, nothing in the air.
void arrumaMesa(Jogo& jogo);

void ApuradeEntrada(Jogo& jogo);

// The caption of the trinca line for a count: "3 trincas", "2 trincas", "1 trinca" or "".
std::string legendaTrincas(int16 valor);

// Writes the trinca line from the player's full count, and returns that count.
int16 escreveTrincas(Jogo& jogo);

} // namespace corvina

#pragma once
// The first half of the player's turn: a click on the stock or on the pile is the draw.

#include "core/jogo.h"

namespace corvina {

// A click on the stock (`costas2`).
Tarefa<> costas2_Click(Jogo& jogo);
// A click on the top of the pile (`Discartado`).
Tarefa<> Discartado_Click(Jogo& jogo);

// The table once the drawn card stands face up in slot 10: the player is to throw.
void fechaCompra(Jogo& jogo);

// Puts the sort button back to "Auto", as every draw and discard does.
void voltaOrdenarAuto(Jogo& jogo);

} // namespace corvina

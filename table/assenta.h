#pragma once
// The pictures of the player's attention, laid out from the table's state in one place: the row
// shows the hand, the keys' focus lies within it, and the moving sprite, when shown, stands on
// the card it stands for, with that card's picture and place. Input changes the state (the card
// under the mouse, the focus) and calls this; it never moves a sprite itself.

#include "core/jogo.h"
#include "table/vista_de_cena.h"

namespace corvina {

// A flight, a drag or the machine's turn owns the sprites: then only the focus is kept in range.
void assentaAtencao(Jogo& jogo, VistaDeCena& vista);

// The keys put their focus on slot `casa` (0: none). Where a hand of ten raises the card under the
// mouse, it raises the card in focus, and the moving sprite is laid on it, so that a click on
// the raised card plays it as a click on a card raised by the mouse does.
void focaCarta(Jogo& jogo, VistaDeCena& vista, int16 casa);

} // namespace corvina

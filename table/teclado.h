#pragma once
// The whole play from the keyboard: a focus that walks the player's row, the two draws, the
// discard of the card in focus, and moving that card along the row. Each key does what the
// mouse does on the same part, under the same conditions.

#include "core/jogo.h"
#include "table/vista_de_cena.h"

namespace corvina {

enum class Tecla {
    Esquerda,       // the focus one card left (from none: the last card)
    Direita,        // one card right (from none: the first)
    Primeira,       // Home
    Ultima,         // End
    CartaAEsquerda, // Shift+Left: the card in focus trades places with its left neighbour
    CartaADireita,  // Shift+Right
    Baralho,        // B: draw from the stock
    Pilha,          // P: take the top of the pile
    Descartar,      // Enter or Space: discard the card in focus
    Ordenar,        // O: the sort button
    Solta,          // Escape: no card in focus
};

// The focus set by a digit: 1..9 the slot, 0 the tenth.
void focaCasa(Jogo& jogo, VistaDeCena& vista, int16 casa);

// True when the key did something on the table.
bool teclaNaMesa(Jogo& jogo, VistaDeCena& vista, Tecla tecla);

// The focus kept within the row as the hand grows and shrinks; none while the hand is empty.
void ajustaFoco(const Jogo& jogo, VistaDeCena& vista);

} // namespace corvina

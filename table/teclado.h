#pragma once
// The whole play from the keyboard: a focus that walks the player's row, and the keys that turn
// into the same commands as the mouse's clicks on the same parts.

#include <optional>

#include "table/condutor.h"
#include "table/jogada.h"

namespace corvina {

enum class Tecla {
    Esquerda,       // the focus one card left (from none: the last card)
    Direita,        // one card right (from none: the first)
    Primeira,       // Home
    Ultima,         // End
    CartaAEsquerda, // Shift+Left: the card in focus one place left
    CartaADireita,  // Shift+Right
    Baralho,        // B: draw from the stock
    Pilha,          // P: take the top of the pile
    Descartar,      // Enter or Space: discard the card in focus
    Ordenar,        // O: the sort button
    Solta,          // Escape: no card in focus
};

// The command a key sends, with the focus where it stands; none for the keys that only move it.
std::optional<Jogada> jogadaDaTecla(Tecla tecla, int16 foco);

// The key on the table: the focus moves, or its command goes to the conductor.
void teclaNaMesa(Condutor& condutor, Jogo& jogo, VistaDeCena& vista, Tecla tecla);
// The focus set by a digit: 1..9 the slot, 0 the tenth.
void focaCasa(Jogo& jogo, VistaDeCena& vista, int16 casa);

} // namespace corvina

#pragma once
// A move of the player, whatever sent it: the mouse, the keys, the hint or a screen reader.

#include "core/carta.h"

namespace corvina {

enum class Acao {
    Comprar,       // the stock's top card
    PegarDescarte, // the pile's top card
    Descartar,     // the card of slot `casa` goes to the pile
    Mover,         // the card of slot `casa` goes to slot `destino`, the others make room
    Ordenar,       // the sort button
    Soltar,        // the mouse lets the dragged card go: home, refused, or to the pile
};

struct Jogada {
    Acao acao;
    int16 casa = 0;
    int16 destino = 0;
};

// Why a command was not played.
enum class Recusa {
    Nenhuma,
    Ocupada,   // a card in the air or the machine deciding
    Fechada,   // what it would touch takes no click now (switched off, hidden, no such slot)
    SemArraste // a drop with no card in the hand
};

} // namespace corvina

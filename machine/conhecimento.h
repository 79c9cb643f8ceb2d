#pragma once
// What one side knows of where the cards are, read off its view of the table: its own hand,
// the cards lying in the pile, the cards the other side is known to hold, and so what may still
// come from the stock or stand unseen in the other hand.

#include "core/visao_do_nivel.h"
#include "machine/distancia.h"

namespace corvina {

struct Conhecimento {
    Copias mao{};
    Copias naPilha{};    // thrown and not taken back; the top among them
    Copias doOutro{};    // taken from the pile by the other side and not thrown again
    Copias invisiveis{}; // neither in sight nor known: in the stock or in the other hand
};

Conhecimento conhecimentoDe(const VisaoDoNivel& visao);

// Copies in a list of cards.
Copias copiasDe(const std::vector<Carta>& cartas);

} // namespace corvina

#pragma once
// The machine's one rule: a new card comes in only where it raises the count of the hand.
// These read the machine's own nine cards and the card on offer, nothing else.

#include <span>

#include "core/carta.h"

namespace corvina {

struct Tentativa {
    int16 melhorPontos = 0;
    int16 melhorCarta = 0; // slot 1..9 of the best short count; 0 when none rose above 0
};

// Tries the card in each of the nine slots in turn (rising, or falling from 9), judging each
// by the short count. The first slot to reach a result keeps it.
Tentativa tentaCarta(std::span<const Carta> nove, Carta nova, bool descendo);

// After a draw: the slot to throw away, 10 for the drawn card itself.
int16 escolheDescarteAposCompra(std::span<const Carta> nove, Carta comprada, int16 pontosBase);

} // namespace corvina

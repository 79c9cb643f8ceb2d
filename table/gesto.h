#pragma once
// What the pointer is doing on the table: the card it is over, the card it holds and where that
// card came from, the raised card, the lit toolbar button. The screen's state alone: what a
// match keeps, what the levels see and what a hand's log records never hold any of it.

#include "core/mesa.h"

namespace corvina {

inline constexpr int16 kNenhumaDestacada = 11; // no card of the row stands raised

struct Gesto {
    int16 yMao = 0;    // the row's top at rest, in twips
    int16 xOrigem = 0; // where the held card goes back to
    int16 cartaAtual = 0;
    int16 cartaOrigem = 0;
    int16 destacada = kNenhumaDestacada;
    int16 botaoAtivo = 0;
    int16 arrastando = 0; // 1 while the mouse holds a card
    float mouseX = 0, mouseY = 0;
    int16 slotSob = 0;
};

} // namespace corvina

#pragma once

#include "core/mesa.h"

namespace corvina {

// True when every card of the list, positions 1..qtdJog, stands somewhere in the player's
// hand: a test of presence that guards a sort against the loss of a card.
bool VerificaC(const Mesa& mesa, const Casas& naipes, const Casas& valores);

} // namespace corvina

#pragma once
// The game's own count of a list of cards, for the levels that hold cards and not a table.

#include <vector>

#include "core/carta.h"

namespace corvina {

int16 contaDasCartas(const std::vector<Carta>& cartas, bool soTrincas = false);

} // namespace corvina

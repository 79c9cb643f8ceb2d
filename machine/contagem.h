#pragma once
// The count of a hand, the game's one measure: 20 a trinca, 3 a dupla, 1 a dupla separada,
// best of the greedy searches over fifteen slot orders (seven for the short count).

#include "core/mesa.h"

namespace corvina {

// Leaves the hand as it came, and cartaLivre and the group list of the last order searched,
// exactly as the try-by-try walk of contagem_literal.h does.
int16 TemQuantosGrupos(Mesa& mesa, Lado dequem, bool soTrincas = false);

} // namespace corvina

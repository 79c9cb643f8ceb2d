#pragma once
// The count of one side's hand at the table: the count of its cards (contagem_de_cartas.h),
// leaving behind what the walk leaves in the table's state.

#include "core/mesa.h"

namespace corvina {

// Leaves the hand as it came, and cartaLivre and, for the player's side, the group list of the
// last order searched (qtdGrupo entries of grupoValor/grupoNaipe, three per trinca).
int16 TemQuantosGrupos(Mesa& mesa, Lado dequem, bool soTrincas = false);

// The try-by-try walk with the side's own scratch arrays: the reference for the above.
int16 TemQuantosGruposLiteral(Mesa& mesa, Lado dequem, bool soTrincas);

// One greedy search of the hand in its present slot order, leaving the same.
int16 ContaGrupos(Mesa& mesa, Lado dequem);

} // namespace corvina

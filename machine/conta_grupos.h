#pragma once
// One greedy search of a hand in its present slot order: trincas first, then duplas.

#include "core/mesa.h"

namespace corvina {

// Points of the hand in this slot order. Leaves cartaLivre and, for the player's side,
// the group list (qtdGrupo entries of grupoValor/grupoNaipe, three per trinca).
int16 ContaGrupos(Mesa& mesa, Lado dequem);

// Points of the duplas (3) and then duplas separadas (1) among the slots still free.
int16 ContaDuplas(Mesa& mesa, Lado dequem);

} // namespace corvina

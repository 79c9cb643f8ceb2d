#pragma once
// The meld tests on slots of one side's hand, as the table's procedures name them.

#include "core/mesa.h"
#include "core/trincas.h"

namespace corvina {

bool ValeGrupo(Mesa& mesa, int carta1, int carta2, int carta3, Lado dequem);
bool ValeDupla(Mesa& mesa, int carta1, int carta2, Lado dequem);
bool ValeDuplaSeparada(Mesa& mesa, int carta1, int carta2, Lado dequem);

} // namespace corvina

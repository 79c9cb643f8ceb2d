#pragma once
// A match that was left in its middle, played on: offered when its player sits down, and laid
// out on the table exactly where it stopped.

#include "core/jogo.h"
#include "core/partida_guardada.h"

namespace corvina {

// The player's kept match, when there is one: asked about, laid out on "Sim", dropped for good
// on "Não". True when the table now holds it.
bool ofereceRetomada(Jogo& jogo);

// The table as the kept match left it; `estado` is what confere() made of it.
void retoma(Jogo& jogo, const PartidaGuardada& partida, const EstadoDaMao& estado);

} // namespace corvina

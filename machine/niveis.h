#pragma once
// How each level is made.

#include <memory>

#include "core/nivel.h"

namespace corvina {

// No level draws on chance: each decides alike on the same view, so any match replays.
std::unique_ptr<Nivel> criaNivel(TipoNivel n);

} // namespace corvina

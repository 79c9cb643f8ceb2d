#pragma once
// How each level is made.

#include <cstdint>
#include <memory>

#include "core/nivel.h"

namespace corvina {

// A level that samples would draw its chance from `semente` and what it sees, nothing else;
// none does today, and every level decides alike on the same view.
std::unique_ptr<Nivel> criaNivel(TipoNivel n, std::uint64_t semente);

} // namespace corvina

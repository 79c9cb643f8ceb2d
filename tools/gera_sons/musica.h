#pragma once
// The tune behind the choose-player window and the hall of fame: a small bossa of our own,
// vibraphone over nylon guitar, bass and brushes, about a minute long.

#include <vector>

#include "midi.h"

namespace gera {

inline constexpr double kAndamento = 96; // beats a minute: 24 bars of 4/4 last a minute

std::vector<Trilha> compoeMusica();

} // namespace gera

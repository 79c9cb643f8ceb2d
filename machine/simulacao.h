#pragma once
// A hand played out fast, for the levels that look ahead: both sides by a quick form of
// Esperto's rule (fewest cards missing, the drawn card or the pile's top taken only when it
// brings the hand closer), with no pictures, no history and no game count. Side 0 is the one
// that asks; a hand it wins is worth 1, one the other side wins 0, a spent stock a half.

#include <array>
#include <cstdint>
#include <vector>

#include "machine/distancia.h"

namespace corvina {

struct Mundo {
    std::array<Copias, 2> maos{};
    std::array<int, 2> faltam{-1, -1}; // of each nine-card hand, -1 until known
    Copias naPilha{};
    int topo = -1;                   // the kind on top of the pile, -1 when none can be taken
    std::vector<std::uint8_t> monte; // kinds; the back is drawn first
};

inline constexpr double kVitoria = 1.0, kEmpate = 0.5, kDerrota = 0.0;

// From the turn of `vez`, holding nine cards, to the end of the hand.
double jogaAteOFim(Mundo& m, int vez);

// Side 0 holds nine: it takes the top (or draws), throws by the quick rule, and play goes on.
double terminaAVez(Mundo& m, bool pegaDescarte);

// Side 0 holds ten: it throws this kind, and play goes on.
double descartaEJoga(Mundo& m, int tipo);

} // namespace corvina

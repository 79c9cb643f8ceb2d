#pragma once
// A hand played out to its end on kinds of card alone, both seats by a quick rule: take the top
// of the pile when it brings the hand closer to three trincas, else draw; throw a card that a
// best layout leaves out, the loneliest of them. It is the search's playout: cheap (one or two
// layouts a turn), sensible, and the same for every move it compares.

#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "machine/distancia.h"

namespace corvina {

struct MaoSimulada {
    // Seat 0 is the one that searches, seat 1 the other.
    std::array<Copias, 2> maos{};
    int topo = -1;                   // the kind on top of the pile, if it can be taken
    Copias mortas{};                 // thrown and out of reach: the pile under its top
    std::vector<std::uint8_t> monte; // the next card drawn last
};

// Seat `vez` moves first, with nine cards. 1 when seat 0 wins, 0 when seat 1 does, 0.5 when the
// stock runs out first.
double jogaAteOFim(MaoSimulada mao, int vez, std::mt19937_64& sorte);

// What may still come to a seat: copies neither in its hand nor dead in the pile.
Copias podemVirA(const Copias& mao, const Copias& mortas);

// The quick rule's throw from ten cards: the kind to throw, and what the nine left lack.
struct Jogada10 {
    int tipo = 0;
    int faltam = kCartasDasTrincas;
};
Jogada10 descarteRapido(const Copias& dez, const Copias& podemVir, std::mt19937_64& sorte);

} // namespace corvina

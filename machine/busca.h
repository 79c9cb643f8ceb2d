#pragma once
// The search behind the hint: each move it weighs is played out to the end of the hand in many
// sampled worlds, every move in the same worlds with the same chance (so that the
// difference between two moves is not the luck of their worlds), and the move that wins most
// often is the choice. Anytime: it samples until its time or its count of worlds is spent, or
// it is told to stop; the same seed and count of worlds always give the same answer.

#include <atomic>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "core/visao_do_nivel.h"
#include "machine/amostrador.h"

namespace corvina {

struct Orcamento {
    double ms = 50;                           // of one core
    int mundos = 0;                           // at most this many; 0, no cap
    std::uint64_t semente = 0;                // mixed with the view: a decision is replayable
    const std::atomic<bool>* parar = nullptr; // stops it between two worlds
    int candidatos = 5;                       // throws weighed: Forte's, then Esperto's best
};

// One move and its share of wins over the worlds played (a hand without winner counts half).
struct Chance {
    int16 casa = 0; // the slot thrown; for the draw, kCasaCompra to draw, 0 to take the pile
    double ganha = 0;
};

struct Pesagem {
    std::vector<Chance> chances; // best first
    int mundos = 0;              // worlds played
};

// Where the worlds come from: the view's own sampler, or, for analysis only, the real table.
using FonteDeMundos = std::function<Mundo(std::mt19937_64&)>;

// Ten cards in view: the throws, weighed.
Pesagem pesaDescartes(const VisaoDoNivel& visao, const Orcamento& orcamento);
// Nine cards and a top that may be taken: take it (casa 0) or draw (casa kCasaCompra).
Pesagem pesaCompra(const VisaoDoNivel& visao, const Orcamento& orcamento);
// The same on worlds from `fonte`.
Pesagem pesaDescartes(const VisaoDoNivel& visao, const Orcamento& orcamento,
                      const FonteDeMundos& fonte);
Pesagem pesaCompra(const VisaoDoNivel& visao, const Orcamento& orcamento,
                   const FonteDeMundos& fonte);

} // namespace corvina

#pragma once
// One way the unseen cards may lie, drawn from what a seat may know and nothing else: the other
// hand holds the cards it is known to have taken from the pile and kept, and unseen cards to
// make nine; the stock holds the rest of the unseen, in a drawn order. Both are read off the
// seat's own view (Conhecimento): the real other hand and the stock's order are never in reach.

#include <cstdint>
#include <random>
#include <vector>

#include "core/visao_do_nivel.h"
#include "machine/conhecimento.h"

namespace corvina {

struct Mundo {
    Copias doOutro{};                // the other hand
    std::vector<std::uint8_t> monte; // kinds, the next card drawn last
};

class Amostrador {
  public:
    explicit Amostrador(const VisaoDoNivel& visao);

    // A world drawn uniformly among those the view allows.
    Mundo sorteia(std::mt19937_64& sorte) const;
    const Conhecimento& conhecimento() const { return k_; }

  private:
    Conhecimento k_;
    std::vector<std::uint8_t> invisiveis_; // every unseen copy, once
    int faltamAoOutro_ = 0;                // unseen cards the other hand holds
    int monte_ = 0;
};

} // namespace corvina

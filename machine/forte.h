#pragma once
// Forte: Esperto's few best choices, weighed two draws ahead. Each is judged by the cards the
// hand would still lack after the next card from the stock and the best throw, and after one
// more draw, on average over every card that may come, as many times as it may. A search over
// chance: nothing sampled, so the same view always decides the same way.

#include "core/nivel.h"
#include "machine/conhecimento.h"

namespace corvina {

struct ParametrosForte {
    int candidatos = 4; // throws weighed: Esperto's best few, one per kind
};

class Forte : public Nivel {
  public:
    explicit Forte(ParametrosForte p = {}) : p_(p) {}
    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    ParametrosForte p_;
};

// The worth of a hand, in cards it lacks (less is better): nine cards about to draw from the
// stock, on average over what may come; ten cards, by their best nine.
double valorDaCompra(const Copias& nove, Copias invisiveis);
double valorDeDez(Copias dez, const Copias& invisiveis, int invisiveisAoTodo);

} // namespace corvina

#pragma once
// A player of the machine's seat: it decides from what that seat may know (VisaoDoNivel), and
// the turn flow carries its decisions out on the table.

#include "core/carta.h"

namespace corvina {

struct VisaoDoNivel;

class Nivel {
  public:
    virtual ~Nivel() = default;
    // Nine cards in view: true to take the top of the pile, false to draw from the stock.
    virtual bool pegaDescarte(const VisaoDoNivel& visao) = 0;
    // Ten cards in view, the tenth just taken (from the pile when `doDescarte`): the slot,
    // 1 to 10, that goes to the pile.
    virtual int16 descarte(const VisaoDoNivel& visao, bool doDescarte) = 0;
};

} // namespace corvina

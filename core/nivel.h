#pragma once
// A player of the machine's seat: it decides from what that seat may know (VisaoDoNivel), and
// the turn flow carries its decisions out on the table. And the levels a seat can be played at.

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

// The levels; what each is called and how it is made stand in machine/niveis.h.
enum class TipoNivel { Classico, Esperto, Forte };

// Only Clássico may take the player's better dealt hand, and only while the player lets it.
constexpr bool trocaNaDistribuicao(TipoNivel n, bool distribuicaoJusta) {
    return n == TipoNivel::Classico && !distribuicaoJusta;
}

} // namespace corvina

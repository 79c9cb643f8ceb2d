#pragma once
// Clássico: the machine as it has always played. A new card comes in only where it raises the
// count of the hand; the pile's top is tried in slots 1..9 rising, a drawn card in 9..1
// falling, and a card that raises nothing goes back to the pile.

#include <array>
#include <optional>

#include "core/carta.h"
#include "core/mesa.h"
#include "core/nivel.h"
#include "machine/tentativas.h"

namespace corvina {

class Classico : public Nivel {
  public:
    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    // The count of the nine cards before the turn, kept from the draw's decision for the
    // discard's: both read the same nine cards.
    int16 pontosBase(const VisaoDoNivel& visao);
    Tentativa tentaDoTopo(const VisaoDoNivel& visao, Carta topo);
    std::array<Carta, kCartasNaMao> baseDe_{};
    int16 base_ = -1;
    struct TopoTentado {
        std::array<Carta, kCartasNaMao> nove;
        Carta carta;
        Tentativa tentativa;
    };
    std::optional<TopoTentado> topoTentado_;
};

} // namespace corvina

#pragma once
// The machine's seat at the table: the level the player chose, read at every decision, so that
// a change in the level window counts from the next turn on. It answers on whatever thread asks;
// the table asks on a worker while the window goes on, and never twice at once.

#include <array>
#include <memory>

#include "core/module1.h"
#include "machine/niveis.h"

namespace corvina {

class NivelDaMesa : public Nivel {
  public:
    NivelDaMesa();
    // The settings whose level it plays; until then, the first level.
    void segue(const Module1& modulo) { modulo_ = &modulo; }

    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    Nivel& escolhido();

    const Module1* modulo_ = nullptr;
    std::array<std::unique_ptr<Nivel>, kNiveisDoJogo.size()> niveis_; // as in the table
};

} // namespace corvina

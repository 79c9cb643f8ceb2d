#pragma once
// Every move by the hint's search, on worlds sampled from the seat's own view: an analysis
// player for the arena, to measure what the search is worth against the levels and how that
// grows with its time. Not a level: Forte plays better (see the README).

#include "core/nivel.h"
#include "machine/busca.h"

namespace corvina {

class NivelDeBusca : public Nivel {
  public:
    explicit NivelDeBusca(Orcamento orcamento) : orcamento_(orcamento) {}
    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    Orcamento orcamento_;
};

} // namespace corvina

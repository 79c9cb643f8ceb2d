#pragma once
// Forte: Esperto's choice, weighed against a few others by playing the hand out in worlds
// sampled from what the seat can't see (the other hand, the stock's order). Every candidate
// meets the same worlds, and Esperto's choice gives way only to a clear paired advantage.
// The worlds come from the seed and the view alone: the same view decides the same way.

#include <cstdint>
#include <random>
#include <vector>

#include "core/nivel.h"
#include "machine/conhecimento.h"
#include "machine/simulacao.h"

namespace corvina {

struct ParametrosForte {
    int mundos = 48;        // worlds sampled per decision
    int candidatos = 4;     // throws weighed: Esperto's best few
    double confianca = 2.0; // standard errors an advantage must clear
    double vantagemMinima = 0.02;
};

class Forte : public Nivel {
  public:
    explicit Forte(std::uint64_t semente, ParametrosForte p = {}) : semente_(semente), p_(p) {}
    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    std::vector<Mundo> sorteiaMundos(const VisaoDoNivel& visao, const Conhecimento& k) const;
    // The index of the candidate to play: 0, the default, unless another is clearly better.
    std::size_t escolhe(const std::vector<std::vector<double>>& resultados) const;

    std::uint64_t semente_;
    ParametrosForte p_;
};

} // namespace corvina

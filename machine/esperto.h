#pragma once
// Esperto: plays by how many cards the hand still lacks for three trincas, counting only the
// copies that can still come. Ties go to the hand that more unseen cards would bring closer,
// then away from cards that finish what the other side is seen collecting. No search.

#include <vector>

#include "core/nivel.h"
#include "machine/conhecimento.h"

namespace corvina {

// One way to throw a card from ten, as Esperto weighs it.
struct Avaliacao {
    int16 casa = 0;     // slot 1..10
    bool vence = false; // the nine left win by the game's count
    int faltam = kCartasDasTrincas;
    int alimenta = 0; // cards of the other side's takes it would stand beside (0 to 2)
    int saidas = 0;   // unseen copies that would bring the nine left one card closer
};

class Esperto : public Nivel {
  public:
    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

    // Every slot of ten cards, best first; the first is the one Esperto throws.
    static std::vector<Avaliacao> avaliaDescartes(const std::vector<Carta>& mao,
                                                  const Conhecimento& k);
};

} // namespace corvina

#pragma once
// The hint: Forte's choice for the player's own move, told and marked, never made.

#include <string>

#include "core/jogo.h"
#include "core/visao_do_nivel.h"
#include "machine/forte.h"

namespace corvina {

struct Dica {
    enum class Tipo { Nenhuma, Baralho, Descarte, Carta };
    Tipo tipo = Tipo::Nenhuma;
    int16 casa = 0; // the slot of the card to throw
    std::string texto;
    // The part of the table to mark: the stock, the pile or the card.
    Peca peca() const;
};

// Forte's choice on the player's view: nine cards, where to draw; ten, what to throw
// (`doDescarte`: the tenth came from the pile). Reads only the copy it is given.
Dica dicaDaVisao(const VisaoDoNivel& visao, bool doDescarte, Forte& forte);

} // namespace corvina

#pragma once
// The hint: Forte's move for the player's own turn, told with how often it won in the worlds the
// search played, and marked; never made.

#include <string>

#include "core/jogo.h"
#include "core/visao_do_nivel.h"
#include "machine/busca.h"

namespace corvina {

struct Dica {
    enum class Tipo { Nenhuma, Baralho, Descarte, Carta };
    Tipo tipo = Tipo::Nenhuma;
    int16 casa = 0; // the slot of the card to throw
    std::string texto;
    // The part of the table to mark: the stock, the pile or the card.
    Peca peca() const;
};

// The hint's budget: it answers well inside a fifth of a second.
inline constexpr double kMsDaDica = 150;

// The move on the player's view: nine cards, where to draw; ten, what to throw. Reads only the
// copy it is given.
Dica dicaDaVisao(const VisaoDoNivel& visao, const Orcamento& orcamento);

// "61%": a share of wins as the player reads it.
std::string percentual(double ganha);

} // namespace corvina

#pragma once
// The hint: Forte's choice for the player's own move, told and marked, never made.

#include <string>

#include "core/jogo.h"
#include "machine/nivel_da_mesa.h"

namespace corvina {

struct Dica {
    enum class Tipo { Nenhuma, Baralho, Descarte, Carta };
    Tipo tipo = Tipo::Nenhuma;
    int16 casa = 0; // the slot of the card to throw
    std::string texto;
    // The part of the table to mark: the stock, the pile or the card.
    Peca peca() const;
};

// Nothing while the player can't move (the machine's turn, a flight, no hand dealt).
Dica dicaDoJogador(const Jogo& jogo, NivelDaMesa& nivel);

} // namespace corvina

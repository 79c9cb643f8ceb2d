#pragma once
// The table as one side may know it: its own hand, the top of the pile, every card thrown so far
// by either side, the cards the other side took from the pile, the size of the stock and the
// score. It is a copy, holding no way back into the table: nothing of the other hand, nor the
// order of the stock, can be read through it.

#include <optional>
#include <vector>

#include "core/carta.h"
#include "core/jogo.h"
#include "core/lado.h"

namespace corvina {

struct VisaoDoNivel {
    std::vector<Carta> mao;              // slots 1.. in order: nine, or ten after a draw
    std::optional<Carta> topo;           // the top of the pile, when it can be taken
    std::vector<Carta> descartes;        // this hand's discards of both sides, in order
    std::vector<Carta> tomadasPeloOutro; // what the other side took from the pile this hand
    std::vector<Carta> descartesDoOutro; // what the other side threw, in order
    std::vector<Carta> tomadasProprias;  // what this side took from the pile
    int16 monte = 0;                     // cards left in the stock
    int16 pontosProprios = 0, pontosDoOutro = 0;
};

VisaoDoNivel visaoDe(const Jogo& jogo, Lado lado);

} // namespace corvina

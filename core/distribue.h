#pragma once
// The shuffle and the deal, with the hidden exchange that favours the machine.

#include <array>
#include <optional>

#include "core/jogo.h"

namespace corvina {

using Embaralhado = std::array<int16, kCartasNoJogo + 1>; // ids at positions 1..104

// Draws the 104 ids in order, each draw after a stir of the generator.
Embaralhado embaralha(Acaso& acaso);

struct Reparticao {
    std::optional<int> sortePercent; // what Sorte was asked, if it was
    bool trocou = false;
};

// Deals a shuffled deck: nine to each side, the rest to the stock, and the exchange.
Reparticao reparte(Jogo& jogo, const Embaralhado& ids);

// Shuffles and deals.
void distribue(Jogo& jogo);

// The chance, in 100, that a better player's hand goes to the machine; none when behind.
std::optional<int> chanceDeTroca(int16 pontosJog, int16 pontosMac);

} // namespace corvina

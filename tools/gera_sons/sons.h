#pragma once
// The eight sounds of the table, each drawn from the building blocks.

#include "sintese.h"

namespace gera {

Amostras deslizaCarta();   // a card taken or laid by the player: a short slide on felt
Amostras estalaCarta();    // the machine's card: a crisper snap
Amostras cliqueBotao();    // a toolbar word or a card back chosen
Amostras negado();         // a discard before the draw: a soft double buzz
Amostras erroDeJogada();   // a discard that cost the hand: two falling notes
Amostras fanfarra();       // the match won
Amostras fraseDaDerrota(); // the match lost
Amostras apaga();          // the hall of fame wiped: a swoosh

} // namespace gera

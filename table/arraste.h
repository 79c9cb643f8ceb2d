#pragma once
// The player's card under the mouse: laid on the moving sprite, dragged along the row to change
// its slot, or let go above the row to discard it.

#include "core/jogo.h"
#include "table/vista_de_cena.h"

namespace corvina {

inline constexpr int16 kBotaoEsquerdo = 1;

// True when a sprite at `top` stands in the row's band: from yMao up by its height / 1.3.
bool naFaixaDaMao(float top, float altura, int16 yMao);
// True when a drop there sends the card back to its slot rather than to the pile.
bool ficaNaMao(int16 cartaAtual, int16 cartaOrigem, int16 qtdJog, float top, float altura,
               int16 yMao);

void cj_MouseMove(Jogo& jogo, VistaDeCena& vista, int16 index);
// X, Y: the mouse in twips inside the sprite.
void Picmover_MouseDown(VistaDeCena& vista, int16 button, float x, float y);
void Picmover_MouseMove(Jogo& jogo, VistaDeCena& vista, int16 button, float x, float y);
// The drop: the card flies home, or is refused before a draw, or goes to the pile and the
// machine plays.
Tarefa<> Picmover_MouseUp(Jogo& jogo, VistaDeCena& vista, int16 button);

} // namespace corvina

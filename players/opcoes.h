#pragma once
// What the options window's OK does, and the bounds of what it can set.

#include "core/armazem.h"
#include "core/module1.h"

namespace corvina {

struct Opcoes {
    bool tocarSom = true, tocarMusica = false, animarCartas = true;
    int velocidade = 6;
    int tamanhoDaMesa = 100;
};

Opcoes opcoesAtuais(const Module1& modulo);
// Into the game and the store: TocarSom, TocarMusica, AnimarCartas and Velocidade, in that
// order, changed or not, and then the table's size, in one write.
void aceitaOpcoes(Module1& modulo, Armazem& armazem, const Opcoes& opcoes);

} // namespace corvina

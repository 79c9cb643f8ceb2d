#pragma once
// The game at the table: its state and what it reaches the outside through.

#include "core/acaso.h"
#include "core/historico.h"
#include "core/mesa.h"
#include "core/module1.h"
#include "core/nivel.h"
#include "core/registro_da_mao.h"
#include "core/vista_mesa.h"

namespace corvina {

struct Jogo {
    Jogo(VistaMesa& v, Acaso& a, Nivel& n) : vista(v), acaso(a), nivel(n) {}

    Mesa mesa;
    Module1 modulo;
    Historico historico;             // what this hand showed in the open
    RegistroDaMao registro;          // the hand under way, move by move
    std::vector<RegistroDaMao> maos; // the hands this match has ended
    VistaMesa& vista;
    Acaso& acaso;
    Nivel& nivel; // who plays the machine's seat
    // From the player's discard to the end of the machine's turn nothing may change the hands;
    // commands that would (a sort, a new match) must wait while this is set.
    bool maosEmJogo = false;
    // The next choice of player was asked for from the toolbar: its cancel works.
    bool cancelarNome = false;
    // Deals in which the machine took the player's better hand: for study, never shown.
    long trocasNaDistribuicao = 0;

    // The hand's log closes with how it ended and joins the match's.
    void encerraMao(FimDaMao fim) {
        if (!registro.distribuida()) return;
        registro.fim = fim;
        maos.push_back(std::move(registro));
        registro = {};
    }
};

} // namespace corvina

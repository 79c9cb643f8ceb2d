#pragma once
// The hall of fame: the six best balances, worked out from the store each time it is shown.

#include <array>
#include <string>
#include <vector>

#include "core/armazem.h"

namespace corvina {

inline constexpr int kLinhasDoHall = 6;

// A player as the store holds it: the values are texts, and an empty one counts as 0.
struct JogadorDoHall {
    std::string nome, saldo, vitorias, derrotas;
};

struct LinhaDoHall {
    std::string nome = ".", vitorias = ".", derrotas = ".", saldo = ".";
    bool preenchida = false;
    bool verde = false; // the player at the table
};

// By balance, highest first; equal balances in the order of the list. Rows without a player
// keep their "."; only the name exactly equal to nomeJogador is green.
std::array<LinhaDoHall, kLinhasDoHall> montaHall(const std::vector<JogadorDoHall>& jogadores,
                                                 const std::string& nomeJogador);
std::array<LinhaDoHall, kLinhasDoHall> montaHall(Armazem& a, const std::string& nomeJogador);

// Wipes balance, wins and defeats of every player of the list; the list stays.
void zeraHall(Armazem& a);

} // namespace corvina

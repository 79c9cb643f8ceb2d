#pragma once
// A match kept while the table waits for the player, so that closing the game in its middle
// loses nothing: the score, the opponent, the deal's fairness, the hands already played and the
// hand under way as its log, and the player's cards in the order they now stand.

#include <optional>
#include <string>
#include <vector>

#include "core/estado_da_mao.h"
#include "core/jogo.h"

namespace corvina {

struct PartidaGuardada {
    std::string nome;
    TipoNivel nivel = TipoNivel::Classico;
    bool justa = false;
    int16 pontosJog = 0, pontosMac = 0;
    std::vector<RegistroDaMao> maos; // the hands this match has ended, in order
    RegistroDaMao atual;
    std::vector<Carta> ordem; // the player's cards now, slot order
};

// The match at the table as it stands; to be kept only while the table waits for the player.
PartidaGuardada guardaDe(const Jogo& jogo);

// The hand under way laid out, when every part of the kept match agrees with the others: the
// score with the hands won, every hand a replay of two packs, the player to move, the order a
// reordering of the cards held. Otherwise, why not, in a few words.
struct Conferida {
    std::optional<EstadoDaMao> estado;
    std::string erro;
};
Conferida confere(const PartidaGuardada& p);

} // namespace corvina

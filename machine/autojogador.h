#pragma once
// The player's side played by the machine's own rule, through the very operations the mouse
// reaches: a click on the pile or the stock, then a discard. It reads only the player's own
// cards, the top of the pile and the card it drew.

#include <atomic>
#include <cstdint>
#include <functional>

#include "core/jogo.h"

namespace corvina {

// One whole turn of the player from nine cards, decided by `nivel` from the player's seat: the
// draw, the discard, and so the machine's turn inside it. Does nothing unless the player holds
// nine cards. Without a level, Clássico plays the seat.
void jogaPeloJogador(Jogo& jogo, Nivel& nivel);
void jogaPeloJogador(Jogo& jogo);

struct ResumoAutojogo {
    long partidas = 0;
    long maos = 0;
    long maosJog = 0;
    long maosMac = 0;
    long maosSemVencedor = 0;
    long trocas = 0;
    long partidasJog = 0;
    long partidasMac = 0;
    double segundos = 0;
    bool interrompido = false;
};

// Whole matches from a seed, both sides by the machine's rule, through a view that draws
// nothing: what the deal's exchange does to two equal players.
// `parar` ends it after the hand in play, with the figures so far; `progresso` hears of every
// match finished (matches done, matches asked).
ResumoAutojogo autojoga(std::uint64_t semente, long partidas,
                        const std::atomic<bool>* parar = nullptr,
                        const std::function<void(long, long)>& progresso = {});

} // namespace corvina

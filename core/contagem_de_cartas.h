#pragma once
// The count of a hand on its cards alone: 20 a trinca, 3 a dupla, 1 a dupla separada, the best
// of greedy searches over fifteen slot orders (seven for the short count). The orders come from
// the cards, so the count is a function of the cards, whatever order they come in.

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "core/carta.h"

namespace corvina {

inline constexpr int kMaiorMaoContada = 11; // the slots a hand has; play uses up to ten

struct Contagem {
    int16 pontos = 0; // the best of the orders searched
    // Of the last order searched, as the walk leaves them: bit p set when the card in place p
    // of that order is in a meld, and the trincas' cards in the order they were taken.
    std::uint16_t usadas = 0;
    int qtdGrupo = 0;
    std::array<Carta, 9> grupo{};
    friend bool operator==(const Contagem&, const Contagem&) = default;
};

// One greedy search of the cards in the order given: trincas first, first in place order each
// time and again from the start after each, then duplas, then duplas separadas.
Contagem contaNaOrdem(std::span<const Carta> mao);

// The try-by-try walk: each try sorts the cards (with `aux` as the passes' scratch row, as long
// as the hand) and searches them; it stops at 60. The reference for the fast count.
Contagem contaCartasLiteral(std::span<const Carta> mao, std::span<Carta> aux, bool soTrincas);

// The same count read off bit masks of the cards. Nothing for a hand no deal can make (a card
// outside the packs, a third copy, fewer than three or more than ten cards).
std::optional<Contagem> contaRapida(std::span<const Carta> mao, bool soTrincas);

// The best count of the hand with `nova` in place of each card in turn (first to last, or last
// to first), and the first place (from 0) to reach it; none when no count rose above 0.
struct MelhorTroca {
    int16 pontos = 0;
    int casa = -1;
};
MelhorTroca melhorTroca(std::span<const Carta> mao, Carta nova, bool descendo, bool soTrincas);

// The count of any hand: the fast count where it answers, else the walk.
Contagem contaCartas(std::span<const Carta> mao, bool soTrincas = false);
int16 pontosDasCartas(std::span<const Carta> mao, bool soTrincas = false);

} // namespace corvina

#pragma once
// A player's record as the store keeps it: matches won and lost, and their balance.

namespace corvina {

// No count of matches or hands goes past this; a stored one that does is damage or hostile,
// and a sum stops there rather than run over.
inline constexpr long kMaiorContagem = 1'000'000'000;

struct Recorde {
    long vitorias = 0, derrotas = 0, saldo = 0;
    bool operator==(const Recorde&) const = default;
};

} // namespace corvina

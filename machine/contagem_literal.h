#pragma once
// The count of a hand walked through try by try, sorting the slots and searching each order.
// It is the reference that the fast count must always agree with, to the group list.

#include "core/mesa.h"

namespace corvina {

inline constexpr int kPrimeiraTentativa = 2;
inline constexpr int kUltimaTentativa = 16;     // fifteen tries
inline constexpr int kUltimaTentativaCurta = 8; // seven tries, no falling order

// Applies the slot order of one try (2..16) to the side's hand.
void aplicaTentativa(Mesa& mesa, int tentativa, Lado dequem);

int16 TemQuantosGruposLiteral(Mesa& mesa, Lado dequem, bool soTrincas);

} // namespace corvina

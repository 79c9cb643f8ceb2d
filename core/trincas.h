#pragma once
// The rules of a trinca and a dupla, on cards alone: the only place where they stand.

#include "core/carta.h"

namespace corvina {

inline constexpr int16 kPontosTrinca = 20;
inline constexpr int16 kPontosDupla = 3;
inline constexpr int16 kPontosDuplaSeparada = 1;
inline constexpr int16 kPontosVitoria = 60; // three trincas

// Three of one value in three suits, or a run of three in one suit (12-13-1 included).
bool valeGrupo(Carta a, Carta b, Carta c);
// One value in two suits, or neighbours in one suit (13 and 1 included).
bool valeDupla(Carta a, Carta b);
// Two apart in one suit. The wrapped cases hold in one order only: 13 before 2, 1 before 12.
bool valeDuplaSeparada(Carta primeira, Carta segunda);

} // namespace corvina

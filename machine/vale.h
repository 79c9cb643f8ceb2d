#pragma once
// The three meld tests: the only place where the rules of a trinca and a dupla stand.

#include "core/mesa.h"

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

// The same tests on slots of one side's hand.
bool ValeGrupo(Mesa& mesa, int carta1, int carta2, int carta3, Lado dequem);
bool ValeDupla(Mesa& mesa, int carta1, int carta2, Lado dequem);
bool ValeDuplaSeparada(Mesa& mesa, int carta1, int carta2, Lado dequem);

} // namespace corvina

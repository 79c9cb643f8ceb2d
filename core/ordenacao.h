#pragma once
// The sorts of one side's hand, as the count, the sort button and the arranging of the
// machine's hand call them: the passes of ordem_das_cartas.h on the side's slots, with the
// side's scratch arrays.

#include "core/mesa.h"
#include "core/ordem_das_cartas.h"

namespace corvina {

// Value rising; with alfa 1, then by suit starting at `pinta` (clamped to 1..4).
void ordenarEX(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem);
// The same with value falling.
void ordenarZtoA(Mesa& mesa, int16 alfa, int16 pinta, Lado dequem);
// The player's hand: flips modoOrdem (0 and 2 to 1, 1 to 2); by value, and by suit at mode 1.
void ordenar2(Mesa& mesa);

// A side's cards and its scratch cards, taken out of the slots and put back.
struct MaoSolta {
    int qtd = 0;
    std::array<Carta, kCasasMao - 1> cartas{}, aux{};
    std::span<Carta> mao() { return {cartas.data(), static_cast<std::size_t>(qtd)}; }
    std::span<Carta> rascunho() { return {aux.data(), static_cast<std::size_t>(qtd)}; }
};
MaoSolta tiraMao(Mesa& mesa, Lado dequem);
void devolveMao(Mesa& mesa, Lado dequem, const MaoSolta& solta);

} // namespace corvina

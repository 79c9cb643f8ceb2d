#pragma once
// A logged hand laid out again at one of its moves: both hands, the stock left, the pile and
// what both sides have seen. The log is checked as it is replayed: a deal that isn't two packs,
// a card drawn that wasn't there, a hand that isn't the cards held, and the replay stops.

#include <optional>
#include <vector>

#include "core/historico.h"
#include "core/registro_da_mao.h"
#include "core/visao_do_nivel.h"

namespace corvina {

struct EstadoDaMao {
    std::vector<Carta> jog, mac; // slot order
    std::vector<Carta> monte;    // the next card to draw first
    std::optional<Carta> topo;   // the pile's top, while it can be taken
    Historico historico;
};

// The hand after its first `lances` moves (each draw and throw; the last may be a draw alone).
std::optional<EstadoDaMao> reconstroi(const RegistroDaMao& r, std::size_t lances);

// The view of the side of move `lance` as its throw was chosen: its ten cards in their order.
std::optional<VisaoDoNivel> visaoNoLance(const RegistroDaMao& r, std::size_t lance);

} // namespace corvina

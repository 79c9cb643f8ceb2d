#pragma once
// The state of one hand at the table. Parallel arrays, index 0 unused, as every procedure
// of the game counts slots from 1.

#include <array>
#include <vector>

#include "core/carta.h"
#include "core/lado.h"

namespace corvina {

inline constexpr int kCasasMao = 12;      // slots 0..11; a hand uses 1..9, and 10 for a drawn card
inline constexpr int kCasasBaralho = 106; // positions 0..105; the shuffle fills 1..104
inline constexpr int16 kCartasNaMao = 9;
inline constexpr int16 kCasaCompra = 10;    // the slot a drawn card lands in
inline constexpr int16 kCartasNoMonte = 86; // 104 less two hands of nine

using Casas = std::array<int16, kCasasMao>;

struct Mesa {
    Casas jogNaipe{}, jogValor{};
    Casas macNaipe{}, macValor{};
    std::array<int16, kCasasBaralho> baralhoValor{}, baralhoNaipe{};
    int16 qtdJog = 0;
    int16 qtdMac = 0;
    int16 qtdBaralho = 0;
    int16 discarteValor = 0, discarteNaipe = 0;
    bool macete = false;
    Casas grupoValor{}, grupoNaipe{};
    int16 qtdGrupo = 0;
    std::array<bool, kCasasMao> cartaLivre{};
    Casas auxNaipeJog{}, auxValorJog{};
    Casas auxNaipeMac{}, auxValorMac{};
    int16 modoOrdem = 0;
    int16 ordemAuto = 0;
    bool animando = false;
    bool mostraContagem = false;
    bool jaAtivada = false;
};

// One side's hand as the count and the sorts see it.
struct Mao {
    Casas& valor;
    Casas& naipe;
    int16& qtd;
    Casas& auxValor;
    Casas& auxNaipe;
};

inline Mao maoDe(Mesa& m, Lado lado) {
    if (lado == Lado::Jog) return {m.jogValor, m.jogNaipe, m.qtdJog, m.auxValorJog, m.auxNaipeJog};
    return {m.macValor, m.macNaipe, m.qtdMac, m.auxValorMac, m.auxNaipeMac};
}

template <std::size_t N>
Carta cartaNa(const std::array<int16, N>& valor, const std::array<int16, N>& naipe, int casa) {
    return {valor[casa], naipe[casa]};
}

// Slots 1..qtd as a list.
inline std::vector<Carta> cartasDe(const Casas& valor, const Casas& naipe, int qtd) {
    std::vector<Carta> cartas;
    for (int i = 1; i <= qtd; ++i) cartas.push_back(cartaNa(valor, naipe, i));
    return cartas;
}

template <std::size_t N>
void poeCarta(std::array<int16, N>& valor, std::array<int16, N>& naipe, int casa, Carta c) {
    valor[casa] = c.valor;
    naipe[casa] = c.naipe;
}

} // namespace corvina

#pragma once
// A card is a value/suit pair; the two packs' copies of a card are the same pair.

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvina {

using int16 = std::int16_t;

// 1 is the ace, 11 the jack, 12 the queen, 13 the king.
inline constexpr int16 kAs = 1;
inline constexpr int16 kRei = 13;
inline constexpr int16 kValores = 13;
// Suits: 1 hearts, 2 clubs, 3 diamonds, 4 spades.
inline constexpr int16 kNaipes = 4;
inline constexpr int16 kCartasPorBaralho = kValores * kNaipes;
inline constexpr int16 kCartasNoJogo = 2 * kCartasPorBaralho;

// The corner index of a value: "A", "2" .. "10", "J", "Q", "K".
constexpr const char* nomeDoValor(int valor) {
    constexpr const char* kNomes[] = {"?", "A", "2", "3",  "4", "5", "6",
                                      "7", "8", "9", "10", "J", "Q", "K"};
    return valor >= 1 && valor <= kValores ? kNomes[valor] : kNomes[0];
}

struct Carta {
    int16 valor = 0;
    int16 naipe = 0;
    friend constexpr auto operator<=>(const Carta&, const Carta&) = default;
};

constexpr bool cartaValida(Carta c) {
    return c.valor >= kAs && c.valor <= kRei && c.naipe >= 1 && c.naipe <= kNaipes;
}

// Ids 1..104 exist only inside the shuffle: (naipe-1)*13+valor, and 52 more for the second pack.
constexpr Carta cartaDoId(int16 id) {
    const int16 base = static_cast<int16>((id - 1) % kCartasPorBaralho);
    return Carta{static_cast<int16>(base % kValores + 1), static_cast<int16>(base / kValores + 1)};
}

// The card as a player says it: "sete de copas", "dama de espadas"; with its article, "o sete
// de copas", "a dama de espadas".
std::string nomeDaCarta(Carta c);
std::string nomeDaCartaComArtigo(Carta c);

// "7/1" is the seven of hearts. Nothing but digits, one slash and digits; no blanks.
std::optional<Carta> lerCarta(std::string_view texto);
std::string escreveCarta(Carta c);

// Blank-separated cards: "7/1 7/2 7/3". Empty when any card is malformed.
std::optional<std::vector<Carta>> lerCartas(std::string_view texto);
std::string escreveCartas(const std::vector<Carta>& cartas);

} // namespace corvina

#pragma once
// How large the table is drawn: 100% to 300% of its 800 by 600 pixels, from the pictures made
// for twice and three times the size. A first start takes the largest size whose table fits in
// three quarters of the screen's free height; a later one keeps the size chosen, as far as the
// screen allows.

#include <array>
#include <string_view>

namespace corvina {

inline constexpr std::array<int, 7> kTamanhosDaMesa = {100, 125, 150, 175, 200, 250, 300};
inline constexpr int kLarguraDaMesa = 800, kAlturaDaMesa = 600;

// The largest size whose table fits a screen of this free width and height (100 at least).
int maiorTamanhoQueCabe(int larguraLivre, int alturaLivre);

// The size to draw at: `guardado` is the stored value ("" on a first start; anything that
// isn't one of the sizes counts as the nearest below it, and 100 at least).
int tamanhoDaMesa(std::string_view guardado, int larguraLivre, int alturaLivre);

} // namespace corvina

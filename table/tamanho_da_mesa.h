#pragma once
// How large the table is drawn: 100% to 300% of its 800 by 600 pixels, from the pictures made
// for twice and three times the size. A first start takes the largest size whose table fits in
// three quarters of the screen's free height; a later one keeps the size chosen, as far as the
// screen allows.

#include <array>
#include <string_view>
#include <vector>

namespace corvina {

inline constexpr std::array<int, 7> kTamanhosDaMesa = {100, 125, 150, 175, 200, 250, 300};
inline constexpr int kLarguraDaMesa = 800, kAlturaDaMesa = 600;

// The largest size whose table fits a screen of this free width and height (100 at least).
int maiorTamanhoQueCabe(int larguraLivre, int alturaLivre);

// The sizes a player may choose on a screen of this free area: those whose table lies wholly on
// it, and the largest that fits always.
std::vector<int> tamanhosQueCabem(int larguraLivre, int alturaLivre);

// In full screen the table fills the screen: the scale, of its 800 by 600 pixels, at which it
// reaches the screen's height or width.
double fatorQuePreenche(int largura, int altura);

// The size to draw at: `guardado` is the stored value ("" on a first start; anything that
// isn't one of the sizes counts as the nearest below it, and 100 at least), as far as it is
// among the sizes that fit.
int tamanhoDaMesa(std::string_view guardado, int larguraLivre, int alturaLivre);

// The scale the whole program asks of the screen, so that the small windows, drawn for a
// table of 800 by 600, don't stand a quarter of their size beside a large one: 2 or 3 on a
// screen that many times a common one's free area, in both width and height, that the desktop
// left at ratio 1 (a 4K monitor without scaling), else 1. The table's size is then chosen in
// the scaled pixels.
int fatorDaTela(int larguraLivre, int alturaLivre, double razao);

} // namespace corvina

#pragma once
// The sort button: each press moves on to the next of four orders and pulls the trincas of
// the hand to the left of the row. Works in assisted mode only.

#include <string>

#include "core/jogo.h"

namespace corvina {

void Label4_Click(Jogo& jogo);

// "Auto" for none chosen, else "Auto 1" .. "Auto 4".
std::string legendaDaOrdem(int16 ordemAuto);

} // namespace corvina

#pragma once
// Hands written as the game's players read them: "7/1 7/2 7/3".

#include <string>
#include <string_view>
#include <vector>

#include "core/mesa.h"

namespace corvina::teste {

std::vector<Carta> cartas(std::string_view texto);

// Puts the cards in slots 1.. of the side's hand and sets its card count.
void poeMao(Mesa& mesa, Lado lado, std::string_view texto);
Mesa mesaCom(Lado lado, std::string_view texto);

std::string textoDaMao(Mesa& mesa, Lado lado);

// A hand in the middle of play: both hands, the top of the pile (none if empty), and the
// stock, position 1 first, so that its last card is drawn first.
void armaMesa(Mesa& mesa, int16& qtdDescarte, std::string_view jog, std::string_view mac,
              std::string_view topo, std::string_view monte);
// The group list left by the last count: "4/2 5/2 6/2 7/2 ...".
std::string textoDosGrupos(const Mesa& mesa);

} // namespace corvina::teste

#pragma once
// The program's own yes/no box.

#include <QWidget>
#include <string>

namespace corvina {

// True on Sim (or Enter), false on Não or Escape. Centred on the screen.
bool SimNao(QWidget* dono, const std::string& mensagem, const std::string& titulo);

} // namespace corvina

#pragma once
// What a key means on the table: the keys of the play, walked and carried along the row, and
// the letters that open the level window, ask for the hint and switch the four-colour deck.

#include <QKeyEvent>
#include <optional>

#include "table/teclado.h"

namespace corvina {

inline constexpr int kTeclaNivel = Qt::Key_N, kTeclaDica = Qt::Key_D, kTeclaQuatroCores = Qt::Key_Q;

// The play's key, if the key (with its modifiers) is one.
std::optional<Tecla> teclaDaMesa(const QKeyEvent& e);

} // namespace corvina

#pragma once
// The rules of Corvina, as the help window shows them: HTML whose pictures are the cards of the
// game, named relative to the assets folder.

#include <QString>

namespace corvina {

QString textoDaAjuda();

} // namespace corvina

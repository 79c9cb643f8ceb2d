#pragma once
// The surfaces of the small windows, loaded once from the assets; a missing one is a plain
// dark surface of the right size.

#include <QPixmap>

namespace corvina {

// "frmnome", "frmrecords", ..., for a screen's device pixel ratio (the 2x surface above 100%).
const QPixmap& figuraDaJanela(const char* nome, qreal razao = 1);

} // namespace corvina

#pragma once
// The surfaces of the small windows, loaded once from the assets; a missing one is a plain
// dark surface of the right size.

#include <QPixmap>

namespace corvina {

// "frmnome", "frmrecords", ...
const QPixmap& figuraDaJanela(const char* nome);

} // namespace corvina

#include "players/qt/pastas.h"

#include <QStandardPaths>

#include "core/ajustes.h"

namespace corvina {

QString pastaDeDados() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString arquivoDeAjustes() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Lunaris/" +
           kTitulo + ".ini";
}

} // namespace corvina

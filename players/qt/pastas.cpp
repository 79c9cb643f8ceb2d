#include "players/qt/pastas.h"

#include <QDir>
#include <QFileInfo>
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

QString pastaPessoal() {
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documentos).isDir() ? documentos : QDir::homePath();
}

QString pastaTemporaria() {
    const QString temp = qEnvironmentVariable("TEMP");
    return !temp.isEmpty() && QFileInfo(temp).isDir() ? temp : QDir::tempPath();
}

} // namespace corvina

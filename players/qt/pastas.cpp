#include "players/qt/pastas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/ajustes.h"
#include "core/caminhos.h"
#include "players/pasta_privada.h"

namespace corvina {

QString PastaPrograma() {
    return QString::fromStdString(
        semSeparadorFinal(QCoreApplication::applicationDirPath().toStdString()));
}

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
    // Chosen once: a fresh folder of our own must serve the whole run.
    static const QString pasta = QString::fromStdString(escolhePastaPrivada(
        qEnvironmentVariable("TEMP").toStdString(),
        qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(), QDir::tempPath().toStdString()));
    return pasta;
}

} // namespace corvina

#include "midia/pastas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/ajustes.h"
#include "core/caminhos.h"
#include "arquivos/pasta_privada.h"

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
    const std::string escolhida =
        escolhePastaPrivada(qEnvironmentVariable("TEMP").toStdString(),
                            qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(), "");
    if (!escolhida.empty()) return QString::fromStdString(escolhida);
    // A fresh folder of our own, made at most once a run.
    static QString nossa;
    if (nossa.isEmpty() || !pastaSoMinha(nossa.toStdString()))
        nossa = QString::fromStdString(escolhePastaPrivada("", "", QDir::tempPath().toStdString()));
    return nossa;
}

} // namespace corvina

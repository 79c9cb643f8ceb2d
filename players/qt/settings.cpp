#include "players/qt/settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "midia/pastas.h"

namespace corvina {

namespace {
QString preparado(const QString& arquivo) {
    QDir().mkpath(QFileInfo(arquivo).absolutePath());
    return arquivo;
}
} // namespace

Settings::Settings() : Settings(preparado(arquivoDeAjustes())) {}

Settings::Settings(const QString& arquivoIni)
    : ArquivoDeAjustes(QFile::encodeName(arquivoIni).toStdString()) {}

} // namespace corvina

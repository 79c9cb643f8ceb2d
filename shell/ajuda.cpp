#include "shell/ajuda.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

namespace corvina {

bool iniciaAjuda() {
    const QString programa = QCoreApplication::applicationDirPath() + "/corvinahlp";
    const QFileInfo info(programa);
    if (!info.isFile() || !info.isExecutable()) return false;
    return QProcess::startDetached(programa, {}, QCoreApplication::applicationDirPath());
}

} // namespace corvina

#include "shell/ajuda.h"

#include <QFileInfo>
#include <QProcess>

#include "midia/pastas.h"

namespace corvina {

bool iniciaAjuda() {
    const QString programa = PastaPrograma() + "/corvinahlp";
    const QFileInfo info(programa);
    if (!info.isFile() || !info.isExecutable()) return false;
    return QProcess::startDetached(programa, {}, PastaPrograma());
}

} // namespace corvina

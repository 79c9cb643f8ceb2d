#include "shell/pasta_programa.h"

#include <QCoreApplication>

#include "core/caminhos.h"

namespace corvina {

std::string PastaPrograma() {
    return semSeparadorFinal(QCoreApplication::applicationDirPath().toStdString());
}

} // namespace corvina

#pragma once
// The one owner of the per-user store: the settings file where the desktop keeps a program's
// settings (arquivoDeAjustes()), or a file of the caller's.

#include <QString>

#include "players/arquivo_de_ajustes.h"

namespace corvina {

class Settings : public ArquivoDeAjustes {
  public:
    Settings();
    explicit Settings(const QString& arquivoIni);
};

} // namespace corvina

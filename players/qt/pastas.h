#pragma once
// Where the game keeps its files on this system.

#include <QString>

namespace corvina {

// The per-user data folder, for highcor.dat: the program's own folder may not be writable.
QString pastaDeDados();

// The settings file of the user: $XDG_CONFIG_HOME/Lunaris/Corvina.ini.
QString arquivoDeAjustes();

} // namespace corvina

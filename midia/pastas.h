#pragma once
// Where the game keeps its files on this system.

#include <QString>

namespace corvina {

// The folder of the running program, with no separator at its end.
QString PastaPrograma();

// The per-user data folder, for highcor.dat: the program's own folder may not be writable.
QString pastaDeDados();

// The settings file of the user: $XDG_CONFIG_HOME/Lunaris/Corvina.ini.
QString arquivoDeAjustes();

// The user's documents folder (the home folder when there is none), where an update lands.
QString pastaPessoal();

// A folder for temporary files that only this user can enter: $TEMP when it is such a
// folder, else one of ours under $XDG_RUNTIME_DIR, else a fresh one under the system's.
// "" when none can be had.
QString pastaTemporaria();

} // namespace corvina

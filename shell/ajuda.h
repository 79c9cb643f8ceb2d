#pragma once
// The help program, started beside the game and left to run on its own.

namespace corvina {

// Starts corvinahlp from the program's folder; false (and nothing happens) when it isn't
// there or can't start.
bool iniciaAjuda();

} // namespace corvina

#pragma once

#include <string>

namespace corvina {

// The folder of the running program, with no separator at its end.
std::string PastaPrograma();

} // namespace corvina

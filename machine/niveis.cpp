#include "machine/niveis.h"

#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"

namespace corvina {

std::unique_ptr<Nivel> criaNivel(TipoNivel n) {
    switch (n) {
    case TipoNivel::Esperto:
        return std::make_unique<Esperto>();
    case TipoNivel::Forte:
        return std::make_unique<Forte>();
    case TipoNivel::Classico:
        break;
    }
    return std::make_unique<Classico>();
}

} // namespace corvina

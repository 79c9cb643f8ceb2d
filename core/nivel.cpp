#include "core/nivel.h"

namespace corvina {

std::string_view chaveDoNivel(TipoNivel n) {
    switch (n) {
    case TipoNivel::Esperto:
        return "esperto";
    case TipoNivel::Forte:
        return "forte";
    case TipoNivel::Classico:
        break;
    }
    return "classico";
}

std::optional<TipoNivel> nivelDaChave(std::string_view chave) {
    for (const TipoNivel n : kNiveis)
        if (chaveDoNivel(n) == chave) return n;
    return std::nullopt;
}

std::string_view nomeDoNivel(TipoNivel n) {
    switch (n) {
    case TipoNivel::Esperto:
        return "Esperto";
    case TipoNivel::Forte:
        return "Forte";
    case TipoNivel::Classico:
        break;
    }
    return "Clássico";
}

} // namespace corvina

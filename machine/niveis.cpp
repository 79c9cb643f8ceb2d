#include "machine/niveis.h"

#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"

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

std::unique_ptr<Nivel> criaNivel(TipoNivel n, std::uint64_t semente) {
    switch (n) {
    case TipoNivel::Esperto:
        return std::make_unique<Esperto>();
    case TipoNivel::Forte:
        return std::make_unique<Forte>(semente);
    case TipoNivel::Classico:
        break;
    }
    return std::make_unique<Classico>();
}

} // namespace corvina

#include "core/nivel.h"

namespace corvina {

namespace {
struct NomesDoNivel {
    TipoNivel nivel;
    std::string_view chave, nome;
};
inline constexpr NomesDoNivel kNomes[] = {{TipoNivel::Classico, "classico", "Clássico"},
                                          {TipoNivel::Esperto, "esperto", "Esperto"},
                                          {TipoNivel::Forte, "forte", "Forte"}};

const NomesDoNivel& nomesDo(TipoNivel n) {
    for (const NomesDoNivel& x : kNomes)
        if (x.nivel == n) return x;
    return kNomes[0];
}
} // namespace

std::string_view chaveDoNivel(TipoNivel n) {
    return nomesDo(n).chave;
}

std::optional<TipoNivel> nivelDaChave(std::string_view chave) {
    for (const NomesDoNivel& x : kNomes)
        if (x.chave == chave) return x.nivel;
    return std::nullopt;
}

std::string_view nomeDoNivel(TipoNivel n) {
    return nomesDo(n).nome;
}

} // namespace corvina

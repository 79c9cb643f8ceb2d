#include "machine/niveis.h"

namespace corvina {

namespace {
// Each kind once, each key and each code once: the history and the store could not tell two
// levels apart otherwise.
constexpr bool tabelaSemRepeticao() {
    for (std::size_t i = 0; i < kNiveisDoJogo.size(); ++i)
        for (std::size_t j = i + 1; j < kNiveisDoJogo.size(); ++j)
            if (kNiveisDoJogo[i].tipo == kNiveisDoJogo[j].tipo ||
                kNiveisDoJogo[i].chave == kNiveisDoJogo[j].chave ||
                kNiveisDoJogo[i].codigo == kNiveisDoJogo[j].codigo)
                return false;
    return true;
}
static_assert(tabelaSemRepeticao());
} // namespace

std::size_t indiceDoNivel(TipoNivel n) {
    for (std::size_t i = 0; i < kNiveisDoJogo.size(); ++i)
        if (kNiveisDoJogo[i].tipo == n) return i;
    return 0;
}

const DadosDoNivel& dadosDoNivel(TipoNivel n) {
    return kNiveisDoJogo[indiceDoNivel(n)];
}

std::optional<TipoNivel> nivelDaChave(std::string_view chave) {
    for (const DadosDoNivel& d : kNiveisDoJogo)
        if (d.chave == chave) return d.tipo;
    return std::nullopt;
}

std::optional<TipoNivel> nivelDoCodigo(char codigo) {
    for (const DadosDoNivel& d : kNiveisDoJogo)
        if (d.codigo == codigo) return d.tipo;
    return std::nullopt;
}

std::string chavesDosNiveis() {
    std::string t;
    for (std::size_t i = 0; i < kNiveisDoJogo.size(); ++i) {
        if (i > 0) t += i + 1 == kNiveisDoJogo.size() ? " or " : ", ";
        t += "\"" + std::string(kNiveisDoJogo[i].chave) + "\"";
    }
    return t;
}

} // namespace corvina

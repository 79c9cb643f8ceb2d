#include "machine/conhecimento.h"

#include <algorithm>

namespace corvina {

Copias copiasDe(const std::vector<Carta>& cartas) {
    Copias c{};
    for (const Carta x : cartas)
        if (cartaValida(x)) ++c[tipoDaCarta(x)];
    return c;
}

Conhecimento conhecimentoDe(const VisaoDoNivel& v) {
    Conhecimento k;
    k.mao = copiasDe(v.mao);
    const Copias descartadas = copiasDe(v.descartes);
    const Copias tomadasDoOutro = copiasDe(v.tomadasPeloOutro);
    const Copias tomadasProprias = copiasDe(v.tomadasProprias);
    const Copias jogadasPeloOutro = copiasDe(v.descartesDoOutro);
    for (int t = 0; t < kTipos; ++t) {
        int pilha = descartadas[t] - tomadasDoOutro[t] - tomadasProprias[t];
        int outro = tomadasDoOutro[t] - jogadasPeloOutro[t];
        // Copies are alike: never place more than the two a kind has.
        int livres = 2 - k.mao[t];
        pilha = std::clamp(pilha, 0, std::max(livres, 0));
        livres -= pilha;
        outro = std::clamp(outro, 0, std::max(livres, 0));
        livres -= outro;
        k.naPilha[t] = static_cast<std::uint8_t>(pilha);
        k.doOutro[t] = static_cast<std::uint8_t>(outro);
        k.invisiveis[t] = static_cast<std::uint8_t>(std::max(livres, 0));
    }
    return k;
}

} // namespace corvina

#include <algorithm>

#include "core/contagem_de_cartas.h"
#include "core/ordem_das_cartas.h"
#include "core/trincas.h"

namespace corvina {

Contagem contaCartasLiteral(std::span<const Carta> mao, std::span<Carta> aux, bool soTrincas) {
    std::array<Carta, kMaiorMaoContada> copia{};
    const std::size_t q = std::min<std::size_t>(mao.size(), kMaiorMaoContada);
    std::copy_n(mao.begin(), q, copia.begin());
    const std::span<Carta> ordem(copia.data(), q);

    const int ultima = soTrincas ? kUltimaTentativaCurta : kUltimaTentativa;
    int16 melhor = 0;
    Contagem c;
    for (int tentativa = kPrimeiraTentativa; tentativa <= ultima; ++tentativa) {
        aplicaTentativa(ordem, aux, tentativa);
        c = contaNaOrdem(ordem);
        melhor = std::max(melhor, c.pontos);
        if (melhor >= kPontosVitoria) break;
    }
    c.pontos = melhor;
    return c;
}

} // namespace corvina

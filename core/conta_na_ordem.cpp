#include "core/contagem_de_cartas.h"
#include "core/trincas.h"

namespace corvina {

namespace {

using Livres = std::array<bool, kMaiorMaoContada>;

bool achaTrinca(std::span<const Carta> mao, Livres& livre, int i, Contagem& c) {
    const int q = static_cast<int>(mao.size());
    for (int j = i + 1; j < q; ++j) {
        if (!livre[j]) continue;
        for (int k = j + 1; k < q; ++k) {
            if (!livre[k] || !valeGrupo(mao[i], mao[j], mao[k])) continue;
            for (const int casa : {i, j, k}) {
                c.grupo[c.qtdGrupo++] = mao[casa];
                livre[casa] = false;
            }
            return true;
        }
    }
    return false;
}

// Takes pairs that pass the test, first pair in place order each time, until none is left.
template <typename Teste>
int16 tomaPares(std::span<const Carta> mao, Livres& livre, Teste vale, int16 valor) {
    const int q = static_cast<int>(mao.size());
    int16 total = 0;
    bool achou = true;
    while (achou) {
        achou = false;
        for (int i = 0; i < q && !achou; ++i) {
            if (!livre[i]) continue;
            for (int j = i + 1; j < q; ++j) {
                if (!livre[j] || !vale(mao[i], mao[j])) continue;
                livre[i] = livre[j] = false;
                total = static_cast<int16>(total + valor);
                achou = true;
                break;
            }
        }
    }
    return total;
}

} // namespace

Contagem contaNaOrdem(std::span<const Carta> mao) {
    Contagem c;
    if (mao.size() > kMaiorMaoContada) mao = mao.first(kMaiorMaoContada);
    Livres livre;
    livre.fill(true);
    const int q = static_cast<int>(mao.size());
    for (int i = 0; i <= q - 3; ++i) {
        if (livre[i] && achaTrinca(mao, livre, i, c)) {
            c.pontos = static_cast<int16>(c.pontos + kPontosTrinca);
            i = -1; // the search begins again at the first place
            continue;
        }
        // Whether the third place from the end is free plays no part in this.
        if (i == q - 3 && c.pontos != kPontosVitoria) {
            c.pontos =
                static_cast<int16>(c.pontos + tomaPares(mao, livre, valeDupla, kPontosDupla));
            c.pontos = static_cast<int16>(
                c.pontos + tomaPares(mao, livre, valeDuplaSeparada, kPontosDuplaSeparada));
        }
    }
    for (int p = 0; p < q; ++p)
        if (!livre[p]) c.usadas = static_cast<std::uint16_t>(c.usadas | 1u << p);
    return c;
}

} // namespace corvina

#include "machine/conta_grupos.h"

#include "machine/vale.h"

namespace corvina {

namespace {

inline constexpr int kCasasContadas = 10;

bool achaTrinca(Mesa& mesa, Lado dequem, int q, int i) {
    for (int j = i + 1; j <= q; ++j) {
        if (!mesa.cartaLivre[j]) continue;
        for (int k = j + 1; k <= q; ++k) {
            if (!mesa.cartaLivre[k] || !ValeGrupo(mesa, i, j, k, dequem)) continue;
            if (dequem == Lado::Jog) {
                for (const int casa : {i, j, k}) {
                    ++mesa.qtdGrupo;
                    mesa.grupoValor[mesa.qtdGrupo] = mesa.jogValor[casa];
                    mesa.grupoNaipe[mesa.qtdGrupo] = mesa.jogNaipe[casa];
                }
            }
            mesa.cartaLivre[i] = mesa.cartaLivre[j] = mesa.cartaLivre[k] = false;
            return true;
        }
    }
    return false;
}

// Takes pairs that pass the test, first pair in slot order each time, until none is left.
template <typename Teste> int16 tomaPares(Mesa& mesa, int q, Teste vale, int16 valor) {
    int16 total = 0;
    bool achou = true;
    while (achou) {
        achou = false;
        for (int i = 1; i <= q && !achou; ++i) {
            if (!mesa.cartaLivre[i]) continue;
            for (int j = i + 1; j <= q; ++j) {
                if (!mesa.cartaLivre[j] || !vale(i, j)) continue;
                mesa.cartaLivre[i] = mesa.cartaLivre[j] = false;
                total = static_cast<int16>(total + valor);
                achou = true;
                break;
            }
        }
    }
    return total;
}

} // namespace

int16 ContaGrupos(Mesa& mesa, Lado dequem) {
    int16 pontos = 0;
    mesa.qtdGrupo = 0;
    for (int casa = 1; casa <= kCasasContadas; ++casa) {
        mesa.grupoValor[casa] = 0;
        mesa.grupoNaipe[casa] = 0;
        mesa.cartaLivre[casa] = true;
    }
    const int q = maoDe(mesa, dequem).qtd;
    for (int i = 1; i <= q - 2; ++i) {
        if (mesa.cartaLivre[i] && achaTrinca(mesa, dequem, q, i)) {
            pontos = static_cast<int16>(pontos + kPontosTrinca);
            i = 0; // the search begins again at the first slot
            continue;
        }
        if (i == q - 2 && pontos != kPontosVitoria)
            pontos = static_cast<int16>(pontos + ContaDuplas(mesa, dequem));
    }
    return pontos;
}

int16 ContaDuplas(Mesa& mesa, Lado dequem) {
    const int q = maoDe(mesa, dequem).qtd;
    int16 total = tomaPares(
        mesa, q, [&](int i, int j) { return ValeDupla(mesa, i, j, dequem); }, kPontosDupla);
    total = static_cast<int16>(
        total + tomaPares(
                    mesa, q, [&](int i, int j) { return ValeDuplaSeparada(mesa, i, j, dequem); },
                    kPontosDuplaSeparada));
    return total;
}

} // namespace corvina

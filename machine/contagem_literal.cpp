#include "machine/contagem_literal.h"

#include "machine/conta_grupos.h"
#include "machine/ordenacao.h"
#include "machine/vale.h"

namespace corvina {

void aplicaTentativa(Mesa& mesa, int tentativa, Lado dequem) {
    // Tries 2..4 and 9..12 sort by suit after value; the others by value alone, so that the
    // suits within a value keep the order the try before left them in.
    if (tentativa <= 4) {
        ordenarEX(mesa, kPassaPorNaipe, static_cast<int16>(tentativa), dequem);
    } else if (tentativa <= 8) {
        ordenarEX(mesa, 2, static_cast<int16>(tentativa - 4), dequem);
    } else if (tentativa <= 12) {
        ordenarZtoA(mesa, kPassaPorNaipe, static_cast<int16>(tentativa - 8), dequem);
    } else {
        ordenarZtoA(mesa, 2, static_cast<int16>(tentativa - 12), dequem);
    }
}

int16 TemQuantosGruposLiteral(Mesa& mesa, Lado dequem, bool soTrincas) {
    Mao mao = maoDe(mesa, dequem);
    const int q = mao.qtd;
    const Casas valorGuardado = mao.valor;
    const Casas naipeGuardado = mao.naipe;
    const int ultima = soTrincas ? kUltimaTentativaCurta : kUltimaTentativa;
    int16 melhor = 0;
    for (int tentativa = kPrimeiraTentativa; tentativa <= ultima; ++tentativa) {
        aplicaTentativa(mesa, tentativa, dequem);
        const int16 pontos = ContaGrupos(mesa, dequem);
        if (pontos > melhor) melhor = pontos;
        if (melhor >= kPontosVitoria) break;
    }
    for (int casa = 1; casa <= q; ++casa) {
        mao.valor[casa] = valorGuardado[casa];
        mao.naipe[casa] = naipeGuardado[casa];
    }
    return melhor;
}

} // namespace corvina

#include "core/contagem.h"

#include "core/contagem_de_cartas.h"
#include "core/ordenacao.h"

namespace corvina {

namespace {

inline constexpr int kCasasContadas = 10;

int16 deixa(Mesa& mesa, Lado dequem, const Contagem& c) {
    mesa.qtdGrupo = 0;
    for (int casa = 1; casa <= kCasasContadas; ++casa) {
        mesa.grupoValor[casa] = 0;
        mesa.grupoNaipe[casa] = 0;
        mesa.cartaLivre[casa] = !(c.usadas >> (casa - 1) & 1);
    }
    if (dequem == Lado::Jog) {
        for (int i = 0; i < c.qtdGrupo; ++i) {
            ++mesa.qtdGrupo;
            poeCarta(mesa.grupoValor, mesa.grupoNaipe, mesa.qtdGrupo, c.grupo[i]);
        }
    }
    return c.pontos;
}

} // namespace

int16 TemQuantosGrupos(Mesa& mesa, Lado dequem, bool soTrincas) {
    MaoSolta s = tiraMao(mesa, dequem);
    const auto c = contaRapida(s.mao(), soTrincas);
    if (!c) return TemQuantosGruposLiteral(mesa, dequem, soTrincas);
    return deixa(mesa, dequem, *c);
}

int16 TemQuantosGruposLiteral(Mesa& mesa, Lado dequem, bool soTrincas) {
    MaoSolta s = tiraMao(mesa, dequem);
    const Contagem c = contaCartasLiteral(s.mao(), s.rascunho(), soTrincas);
    devolveMao(mesa, dequem, s); // the hand as it came, the scratch as the last pass left it
    return deixa(mesa, dequem, c);
}

int16 ContaGrupos(Mesa& mesa, Lado dequem) {
    MaoSolta s = tiraMao(mesa, dequem);
    return deixa(mesa, dequem, contaNaOrdem(s.mao()));
}

} // namespace corvina

#include "core/vale.h"

namespace corvina {

bool ValeGrupo(Mesa& mesa, int carta1, int carta2, int carta3, Lado dequem) {
    const Mao mao = maoDe(mesa, dequem);
    return valeGrupo(cartaNa(mao.valor, mao.naipe, carta1), cartaNa(mao.valor, mao.naipe, carta2),
                     cartaNa(mao.valor, mao.naipe, carta3));
}

bool ValeDupla(Mesa& mesa, int carta1, int carta2, Lado dequem) {
    const Mao mao = maoDe(mesa, dequem);
    return valeDupla(cartaNa(mao.valor, mao.naipe, carta1), cartaNa(mao.valor, mao.naipe, carta2));
}

bool ValeDuplaSeparada(Mesa& mesa, int carta1, int carta2, Lado dequem) {
    const Mao mao = maoDe(mesa, dequem);
    return valeDuplaSeparada(cartaNa(mao.valor, mao.naipe, carta1),
                             cartaNa(mao.valor, mao.naipe, carta2));
}

} // namespace corvina

#include "machine/tentativas.h"

#include "core/contagem_de_cartas.h"
#include "core/mesa.h"

namespace corvina {

Tentativa tentaCarta(std::span<const Carta> nove, Carta nova, bool descendo) {
    const MelhorTroca m = melhorTroca(nove, nova, descendo, true);
    return {m.pontos, static_cast<int16>(m.casa + 1)};
}

int16 escolheDescarteAposCompra(std::span<const Carta> nove, Carta comprada, int16 pontosBase) {
    const Tentativa t = tentaCarta(nove, comprada, true);
    return t.melhorPontos > pontosBase ? t.melhorCarta : kCasaCompra;
}

} // namespace corvina

#include "machine/conta_mao.h"

#include "core/mesa.h"
#include "machine/contagem.h"

namespace corvina {

int16 contaDasCartas(const std::vector<Carta>& cartas, bool soTrincas) {
    Mesa m;
    m.qtdMac = static_cast<int16>(cartas.size());
    for (std::size_t i = 0; i < cartas.size() && i + 1 < kCasasMao; ++i)
        poeCarta(m.macValor, m.macNaipe, static_cast<int>(i) + 1, cartas[i]);
    return TemQuantosGrupos(m, Lado::Mac, soTrincas);
}

} // namespace corvina

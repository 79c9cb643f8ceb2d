#include "machine/simulacao.h"

#include <algorithm>

namespace corvina {

namespace {

// Bounded anyway: every take of the pile brings a hand closer, every other turn spends the stock.
inline constexpr int kVezesNoMaximo = 400;

Copias podemVir(const Mundo& m, int lado) {
    Copias c{};
    for (int t = 0; t < kTipos; ++t)
        c[t] = static_cast<std::uint8_t>(std::max(0, 2 - m.maos[lado][t] - m.naPilha[t]));
    return c;
}

int faltamDe(Mundo& m, int lado) {
    if (m.faltam[lado] < 0)
        m.faltam[lado] = distancia(m.maos[lado], podemVir(m, lado), false).faltam;
    return m.faltam[lado];
}

// Ten in hand and one best layout of them: one card outside it goes to the pile, the one with
// fewest cards of the hand beside it. True when the nine left are three trincas.
bool descarta(Mundo& m, int lado, const Distancia& d, int tipo = -1) {
    Copias& mao = m.maos[lado];
    if (tipo < 0) {
        int menor = 3;
        for (int t = 0; t < kTipos; ++t) {
            if (mao[t] <= d.usadas[t]) continue;
            const int junto = parceiras(t, mao);
            if (junto < menor) menor = junto, tipo = t;
        }
    }
    if (tipo < 0) return false; // cannot happen with ten cards; nothing moves
    --mao[tipo];
    ++m.naPilha[tipo];
    m.topo = tipo;
    m.faltam[lado] = -1;
    return faltamDe(m, lado) == 0;
}

enum class Fim { Continua, Venceu, Acabou };

// The draw and the throw of one side.
Fim vez(Mundo& m, int lado, int forca = -1) {
    const int antes = forca < 0 ? faltamDe(m, lado) : 0;
    if (m.topo >= 0 && forca != 0) {
        Copias dez = m.maos[lado];
        ++dez[m.topo];
        Copias vem = podemVir(m, lado);
        const Distancia d = distancia(dez, vem, false);
        if (forca == 1 || d.faltam < antes) {
            --m.naPilha[m.topo];
            m.maos[lado] = dez;
            m.topo = -1;
            return descarta(m, lado, d) ? Fim::Venceu : Fim::Continua;
        }
    }
    if (m.monte.empty()) return Fim::Acabou;
    ++m.maos[lado][m.monte.back()];
    m.monte.pop_back();
    const Distancia d = distancia(m.maos[lado], podemVir(m, lado), false);
    return descarta(m, lado, d) ? Fim::Venceu : Fim::Continua;
}

double resultado(Fim f, int lado) {
    if (f == Fim::Acabou) return kEmpate;
    return lado == 0 ? kVitoria : kDerrota;
}

} // namespace

double jogaAteOFim(Mundo& m, int lado) {
    for (int i = 0; i < kVezesNoMaximo; ++i, lado = 1 - lado) {
        const Fim f = vez(m, lado);
        if (f != Fim::Continua) return resultado(f, lado);
    }
    return kEmpate;
}

double terminaAVez(Mundo& m, bool pegaDescarte) {
    const Fim f = vez(m, 0, pegaDescarte ? 1 : 0);
    if (f != Fim::Continua) return resultado(f, 0);
    return jogaAteOFim(m, 1);
}

double descartaEJoga(Mundo& m, int tipo) {
    if (descarta(m, 0, Distancia{}, tipo)) return kVitoria;
    return jogaAteOFim(m, 1);
}

} // namespace corvina

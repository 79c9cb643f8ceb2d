#include "machine/simulacao.h"

namespace corvina {

namespace {

inline constexpr double kVence0 = 1.0, kVence1 = 0.0, kNinguem = 0.5;

} // namespace

Copias podemVirA(const Copias& mao, const Copias& mortas) {
    Copias p{};
    for (int t = 0; t < kTipos; ++t) {
        const int livres = 2 - mao[t] - mortas[t];
        p[t] = static_cast<std::uint8_t>(livres > 0 ? livres : 0);
    }
    return p;
}

Jogada10 descarteRapido(const Copias& dez, const Copias& podemVir, std::mt19937_64& sorte) {
    const Distancia d = distancia(dez, podemVir, false);
    // Of the cards the layout leaves out, the one with the fewest partners in hand; ties by lot.
    Jogada10 j{-1, d.faltam};
    int menos = 3, empates = 0;
    for (int t = 0; t < kTipos; ++t) {
        if (dez[t] <= d.usadas[t]) continue;
        const int p = parceiras(t, dez);
        if (p < menos) {
            menos = p;
            j.tipo = t;
            empates = 1;
        } else if (p == menos && std::uniform_int_distribution<int>(0, empates++)(sorte) == 0) {
            j.tipo = t;
        }
    }
    return j;
}

double jogaAteOFim(MaoSimulada m, int vez, std::mt19937_64& sorte) {
    std::array<int, 2> faltam{};
    for (int s = 0; s < 2; ++s)
        faltam[s] = distancia(m.maos[s], podemVirA(m.maos[s], m.mortas), false).faltam;
    for (;; vez = 1 - vez) {
        Copias& mao = m.maos[vez];
        Copias podemVir = podemVirA(mao, m.mortas);
        bool pegou = false;
        if (m.topo >= 0 && parceiras(m.topo, mao) > 0) {
            ++mao[m.topo];
            pegou = distancia(mao, podemVir, false).faltam < faltam[vez];
            if (!pegou)
                --mao[m.topo];
            else if (podemVir[m.topo] > 0)
                --podemVir[m.topo];
        }
        if (!pegou) {
            if (m.monte.empty()) return kNinguem;
            const std::uint8_t comprada = m.monte.back();
            m.monte.pop_back();
            ++mao[comprada];
            if (podemVir[comprada] > 0) --podemVir[comprada];
            if (m.topo >= 0) ++m.mortas[m.topo]; // buried under the next throw
        }
        const Jogada10 j = descarteRapido(mao, podemVir, sorte);
        --mao[j.tipo];
        m.topo = j.tipo;
        faltam[vez] = j.faltam;
        if (j.faltam == 0) return vez == 0 ? kVence0 : kVence1;
    }
}

} // namespace corvina

#include "machine/forte.h"

#include <algorithm>

#include "machine/esperto.h"

namespace corvina {

namespace {

int soma(const Copias& c) {
    int n = 0;
    for (const auto x : c) n += x;
    return n;
}

// Nine cards: what they lack, less the chance that the next card brings them one closer.
double valorDeNove(const Copias& nove, const Copias& invisiveis, int total) {
    const Distancia d = distancia(nove, invisiveis, true);
    int saidas = 0;
    for (int t = 0; t < kTipos; ++t)
        if (d.uteis >> t & 1) saidas += invisiveis[t];
    return d.faltam - (total > 0 ? static_cast<double>(saidas) / total : 0.0);
}

} // namespace

double valorDeDez(Copias dez, const Copias& invisiveis, int total) {
    // The cards one best layout leaves out: throwing any of them keeps the fewest missing; of
    // those, the throw that leaves the most ways in.
    const Distancia d = distancia(dez, invisiveis, false);
    double melhor = kCartasDasTrincas + 1;
    for (int t = 0; t < kTipos; ++t) {
        if (dez[t] <= d.usadas[t]) continue;
        --dez[t];
        melhor = std::min(melhor, valorDeNove(dez, invisiveis, total));
        ++dez[t];
    }
    return melhor;
}

double valorDaCompra(const Copias& nove, Copias invisiveis) {
    const int total = soma(invisiveis);
    if (total == 0) return valorDeNove(nove, invisiveis, 0);
    double valor = 0;
    Copias dez = nove;
    // A card that shares no trinca with the hand goes straight back: the nine stay as they are.
    const double semParceira = valorDeNove(nove, invisiveis, total - 1);
    for (int t = 0; t < kTipos; ++t) {
        if (invisiveis[t] == 0) continue;
        const int peso = invisiveis[t];
        if (parceiras(t, nove) == 0) {
            valor += peso * semParceira;
            continue;
        }
        ++dez[t];
        --invisiveis[t];
        valor += peso * valorDeDez(dez, invisiveis, total - 1);
        ++invisiveis[t];
        --dez[t];
    }
    return valor / total;
}

bool Forte::pegaDescarte(const VisaoDoNivel& visao) {
    if (!visao.topo || visao.mao.size() != kCartasNaMao) return false;
    const Conhecimento k = conhecimentoDe(visao);
    Copias dez = k.mao;
    ++dez[tipoDaCarta(*visao.topo)];
    // The top lies in the pile, out of what may come, before and after it is taken.
    const double pega = valorDeDez(dez, k.invisiveis, soma(k.invisiveis));
    return pega < valorDaCompra(k.mao, k.invisiveis);
}

int16 Forte::descarte(const VisaoDoNivel& visao, bool) {
    const Conhecimento k = conhecimentoDe(visao);
    const std::vector<Avaliacao> ordem = Esperto::avaliaDescartes(visao.mao, k);
    if (ordem.front().vence) return ordem.front().casa;
    int16 escolhida = ordem.front().casa;
    double menor = 0;
    Copias vistos{};
    int pesados = 0;
    for (const Avaliacao& a : ordem) {
        const int t = tipoDaCarta(visao.mao[static_cast<std::size_t>(a.casa - 1)]);
        if (vistos[t]++ > 0) continue; // twins weigh the same
        Copias nove = k.mao;
        --nove[t];
        const double v = valorDaCompra(nove, k.invisiveis);
        if (pesados == 0 || v < menor) escolhida = a.casa, menor = v;
        if (++pesados == p_.candidatos) break;
    }
    return escolhida;
}

} // namespace corvina

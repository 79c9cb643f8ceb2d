#include "machine/forte.h"

#include <algorithm>
#include <cmath>

#include "machine/esperto.h"

namespace corvina {

namespace {

std::uint64_t mistura(std::uint64_t h, std::uint64_t x) {
    // splitmix64's finaliser over the running value: every card of the view moves every bit.
    h ^= x + 0x9e3779b97f4a7c15ULL + (h << 6) + (h >> 2);
    h ^= h >> 30;
    h *= 0xbf58476d1ce4e5b9ULL;
    h ^= h >> 27;
    h *= 0x94d049bb133111ebULL;
    return h ^ (h >> 31);
}

std::uint64_t assinaturaDa(const VisaoDoNivel& v, std::uint64_t semente) {
    std::uint64_t h = semente;
    const auto poe = [&h](const std::vector<Carta>& cs) {
        h = mistura(h, cs.size());
        for (const Carta c : cs) h = mistura(h, static_cast<std::uint64_t>(tipoDaCarta(c)));
    };
    poe(v.mao);
    poe(v.descartes);
    poe(v.tomadasPeloOutro);
    h = mistura(h, v.topo ? static_cast<std::uint64_t>(tipoDaCarta(*v.topo)) + 1 : 0);
    return mistura(h, static_cast<std::uint64_t>(v.monte));
}

} // namespace

std::vector<Mundo> Forte::sorteiaMundos(const VisaoDoNivel& visao, const Conhecimento& k) const {
    std::mt19937_64 gerador(assinaturaDa(visao, semente_));
    std::vector<std::uint8_t> invisiveis;
    for (int t = 0; t < kTipos; ++t)
        for (int c = 0; c < k.invisiveis[t]; ++c)
            invisiveis.push_back(static_cast<std::uint8_t>(t));
    std::vector<Mundo> mundos(static_cast<std::size_t>(p_.mundos));
    for (Mundo& m : mundos) {
        std::shuffle(invisiveis.begin(), invisiveis.end(), gerador);
        m.maos[0] = k.mao;
        m.maos[1] = k.doOutro;
        m.naPilha = k.naPilha;
        m.topo = visao.topo ? tipoDaCarta(*visao.topo) : -1;
        const auto ocultas =
            std::min<std::size_t>(static_cast<std::size_t>(k.ocultasDoOutro), invisiveis.size());
        for (std::size_t i = 0; i < ocultas; ++i) ++m.maos[1][invisiveis[i]];
        const std::size_t noMonte = std::min(
            invisiveis.size() - ocultas, static_cast<std::size_t>(std::max<int>(visao.monte, 0)));
        const auto inicio = invisiveis.begin() + static_cast<std::ptrdiff_t>(ocultas);
        m.monte.assign(inicio, inicio + static_cast<std::ptrdiff_t>(noMonte));
    }
    return mundos;
}

std::size_t Forte::escolhe(const std::vector<std::vector<double>>& r) const {
    std::size_t melhor = 0;
    double melhorVantagem = 0;
    const auto n = static_cast<double>(r[0].size());
    for (std::size_t c = 1; c < r.size(); ++c) {
        double soma = 0, quadrados = 0;
        for (std::size_t w = 0; w < r[c].size(); ++w) {
            const double d = r[c][w] - r[0][w];
            soma += d;
            quadrados += d * d;
        }
        const double media = soma / n;
        const double erro = std::sqrt(std::max(0.0, quadrados / n - media * media) / n);
        if (media > p_.vantagemMinima && media > p_.confianca * erro && media > melhorVantagem) {
            melhor = c;
            melhorVantagem = media;
        }
    }
    return melhor;
}

bool Forte::pegaDescarte(const VisaoDoNivel& visao) {
    Esperto esperto;
    const bool padrao = esperto.pegaDescarte(visao);
    if (!visao.topo) return padrao;
    const Conhecimento k = conhecimentoDe(visao);
    const std::vector<Mundo> mundos = sorteiaMundos(visao, k);
    std::vector<std::vector<double>> r(2);
    for (const Mundo& base : mundos)
        for (int c = 0; c < 2; ++c) {
            Mundo m = base;
            r[static_cast<std::size_t>(c)].push_back(terminaAVez(m, c == 0 ? padrao : !padrao));
        }
    return escolhe(r) == 0 ? padrao : !padrao;
}

int16 Forte::descarte(const VisaoDoNivel& visao, bool) {
    const Conhecimento k = conhecimentoDe(visao);
    const std::vector<Avaliacao> ordem = Esperto::avaliaDescartes(visao.mao, k);
    if (ordem.front().vence) return ordem.front().casa;
    // Esperto's best few, one slot for each kind.
    std::vector<int16> casas;
    std::vector<int> tipos;
    for (const Avaliacao& a : ordem) {
        const int t = tipoDaCarta(visao.mao[static_cast<std::size_t>(a.casa - 1)]);
        if (std::find(tipos.begin(), tipos.end(), t) != tipos.end()) continue;
        casas.push_back(a.casa);
        tipos.push_back(t);
        if (static_cast<int>(casas.size()) == p_.candidatos) break;
    }
    if (casas.size() == 1) return casas.front();
    const std::vector<Mundo> mundos = sorteiaMundos(visao, k);
    std::vector<std::vector<double>> r(casas.size());
    for (const Mundo& base : mundos)
        for (std::size_t c = 0; c < casas.size(); ++c) {
            Mundo m = base;
            r[c].push_back(descartaEJoga(m, tipos[c]));
        }
    return casas[escolhe(r)];
}

} // namespace corvina

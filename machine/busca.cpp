#include "machine/busca.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "core/mesa.h"
#include "machine/esperto.h"
#include "machine/forte.h"
#include "machine/simulacao.h"

namespace corvina {

namespace {

using Relogio = std::chrono::steady_clock;

// The seed of one search: the budget's, mixed with what it sees, so that a search can be
// replayed from its view alone whatever was searched before it.
std::uint64_t sementeDaDecisao(const VisaoDoNivel& v, std::uint64_t semente) {
    std::uint64_t h = 0xcbf29ce484222325ULL ^ semente;
    const auto mistura = [&h](std::uint64_t x) { h = (h ^ x) * 0x100000001b3ULL; };
    for (const Carta c : v.mao) mistura(static_cast<std::uint64_t>(tipoDaCarta(c)));
    mistura(0xff);
    for (const Carta c : v.descartes) mistura(static_cast<std::uint64_t>(tipoDaCarta(c)));
    mistura(static_cast<std::uint64_t>(v.monte));
    return h;
}

// One move as the seat would start it, before the other seat's turn; when the move itself ends
// the hand, its result.
using Inicio = std::function<std::optional<double>(MaoSimulada&, std::mt19937_64&)>;
inline constexpr double kVitoria = 1.0, kSemVencedor = 0.5;

struct Candidato {
    int16 casa;
    Inicio inicio;
};

// Every candidate in every world, each world once with one stream of chance for all of them.
Pesagem pesa(const VisaoDoNivel& v, const Orcamento& o, const FonteDeMundos& fonte,
             const MaoSimulada& base, const std::vector<Candidato>& candidatos) {
    const auto fim = Relogio::now() + std::chrono::duration_cast<Relogio::duration>(
                                          std::chrono::duration<double, std::milli>(o.ms));
    std::mt19937_64 sorte(sementeDaDecisao(v, o.semente));
    std::vector<double> soma(candidatos.size(), 0.0);
    Pesagem p;
    do {
        const Mundo mundo = fonte(sorte);
        const std::uint64_t daJogada = sorte();
        for (std::size_t i = 0; i < candidatos.size(); ++i) {
            MaoSimulada m = base;
            m.maos[1] = mundo.doOutro;
            m.monte = mundo.monte;
            std::mt19937_64 acaso(daJogada);
            const std::optional<double> fimJa = candidatos[i].inicio(m, acaso);
            soma[i] += fimJa ? *fimJa : jogaAteOFim(std::move(m), 1, acaso);
        }
        ++p.mundos;
    } while ((o.mundos == 0 || p.mundos < o.mundos) && Relogio::now() < fim &&
             !(o.parar && o.parar->load(std::memory_order_relaxed)));
    for (std::size_t i = 0; i < candidatos.size(); ++i)
        p.chances.push_back({candidatos[i].casa, soma[i] / p.mundos});
    std::stable_sort(p.chances.begin(), p.chances.end(),
                     [](const Chance& a, const Chance& b) { return a.ganha > b.ganha; });
    return p;
}

} // namespace

Pesagem pesaDescartes(const VisaoDoNivel& v, const Orcamento& o, const FonteDeMundos& fonte) {
    const Conhecimento k = conhecimentoDe(v);
    const std::vector<Avaliacao> ordem = Esperto::avaliaDescartes(v.mao, k);
    if (ordem.empty()) return {};
    if (ordem.front().vence) return {{{ordem.front().casa, 1.0}}, 0};
    MaoSimulada base;
    base.maos[0] = k.mao;
    base.mortas = k.naPilha; // the top is buried by the throw
    std::vector<Candidato> candidatos;
    Copias vistos{};
    // Forte's choice is always weighed, then Esperto's best.
    std::vector<int16> casas = {Forte().descarte(v, false)};
    for (const Avaliacao& a : ordem) casas.push_back(a.casa);
    for (const int16 casa : casas) {
        const int t = tipoDaCarta(v.mao[static_cast<std::size_t>(casa - 1)]);
        if (vistos[t]++ > 0) continue; // twins weigh the same
        candidatos.push_back({casa, [t](MaoSimulada& m, std::mt19937_64&) {
                                  --m.maos[0][t];
                                  m.topo = t;
                                  return std::optional<double>();
                              }});
        if (static_cast<int>(candidatos.size()) == o.candidatos) break;
    }
    return pesa(v, o, fonte, base, candidatos);
}

Pesagem pesaCompra(const VisaoDoNivel& v, const Orcamento& o, const FonteDeMundos& fonte) {
    if (!v.topo) return {{{kCasaCompra, 0.5}}, 0};
    const Conhecimento k = conhecimentoDe(v);
    const int topo = tipoDaCarta(*v.topo);
    MaoSimulada base;
    base.maos[0] = k.mao;
    base.mortas = k.naPilha;
    // Then the throw by the quick rule, the same after either draw; a win ends it at once.
    const auto joga = [](MaoSimulada& m, std::mt19937_64& sorte) -> std::optional<double> {
        const Jogada10 j = descarteRapido(m.maos[0], podemVirA(m.maos[0], m.mortas), sorte);
        --m.maos[0][j.tipo];
        m.topo = j.tipo;
        if (j.faltam == 0) return kVitoria;
        return std::nullopt;
    };
    const Candidato pega{0, [topo, joga](MaoSimulada& m, std::mt19937_64& sorte) {
                             if (m.mortas[topo] > 0) --m.mortas[topo];
                             ++m.maos[0][topo];
                             return joga(m, sorte);
                         }};
    const Candidato compra{kCasaCompra,
                           [joga](MaoSimulada& m, std::mt19937_64& sorte) -> std::optional<double> {
                               if (m.monte.empty())
                                   return kSemVencedor; // the hand ends at the empty stock
                               ++m.maos[0][m.monte.back()];
                               m.monte.pop_back();
                               return joga(m, sorte);
                           }};
    return pesa(v, o, fonte, base, {pega, compra});
}

namespace {

FonteDeMundos doAmostrador(const VisaoDoNivel& v) {
    auto amostrador = std::make_shared<const Amostrador>(v);
    return [amostrador](std::mt19937_64& sorte) { return amostrador->sorteia(sorte); };
}

} // namespace

Pesagem pesaDescartes(const VisaoDoNivel& v, const Orcamento& o) {
    return pesaDescartes(v, o, doAmostrador(v));
}

Pesagem pesaCompra(const VisaoDoNivel& v, const Orcamento& o) {
    return pesaCompra(v, o, doAmostrador(v));
}

} // namespace corvina

// The levels that look ahead: the distance to three trincas and one
// decision of each level, on hands drawn from a shuffled double pack.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "core/visao_do_nivel.h"
#include "machine/arena.h"
#include "machine/busca.h"
#include "machine/distancia.h"
#include "machine/esperto.h"
#include "machine/forte.h"
#include "machine/simulacao.h"

namespace corvina {
namespace {

std::vector<Carta> baralhoAoAcaso(std::mt19937& gerador) {
    std::vector<Carta> b;
    for (int id = 1; id <= kCartasNoJogo; ++id) b.push_back(cartaDoId(static_cast<int16>(id)));
    std::shuffle(b.begin(), b.end(), gerador);
    return b;
}

// Nine cards, a top, thirty stock cards gone by: the middle of a hand.
std::vector<VisaoDoNivel> visoes(int quantas, std::size_t cartas) {
    std::mt19937 gerador(2026);
    std::vector<VisaoDoNivel> v(static_cast<std::size_t>(quantas));
    for (auto& x : v) {
        const auto b = baralhoAoAcaso(gerador);
        x.mao.assign(b.begin(), b.begin() + static_cast<std::ptrdiff_t>(cartas));
        x.descartes.assign(b.begin() + 20, b.begin() + 40);
        x.topo = x.descartes.back();
        x.monte = 50;
    }
    return v;
}

void distanciaDeDez(benchmark::State& estado) {
    std::vector<Conhecimento> ks;
    for (const auto& v : visoes(512, kCasaCompra)) ks.push_back(conhecimentoDe(v));
    std::size_t i = 0;
    const bool uteis = estado.range(0) != 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(distancia(ks[i].mao, ks[i].invisiveis, uteis).faltam);
        i = (i + 1) % ks.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(distanciaDeDez)->Name("niveis/distancia_dez")->Arg(0)->Arg(1);

template <class N> void decisao(benchmark::State& estado, N& nivel, std::size_t cartas) {
    const auto vs = visoes(256, cartas);
    std::size_t i = 0;
    for (auto _ : estado) {
        if (cartas == kCartasNaMao)
            benchmark::DoNotOptimize(nivel.pegaDescarte(vs[i]));
        else
            benchmark::DoNotOptimize(nivel.descarte(vs[i], false));
        i = (i + 1) % vs.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}

void espertoDescarte(benchmark::State& estado) {
    Esperto e;
    decisao(estado, e, kCasaCompra);
}
BENCHMARK(espertoDescarte)->Name("niveis/esperto_descarte");

// One playout: a hand played to its end on kinds alone, from a world sampled off a view.
void playout(benchmark::State& estado) {
    const auto vs = visoes(64, kCartasNaMao);
    std::vector<MaoSimulada> maos;
    std::mt19937_64 sorte(7);
    for (const auto& v : vs) {
        const Amostrador a(v);
        const Mundo mundo = a.sorteia(sorte);
        MaoSimulada m;
        m.maos[0] = a.conhecimento().mao;
        m.maos[1] = mundo.doOutro;
        m.mortas = a.conhecimento().naPilha;
        m.monte = mundo.monte;
        maos.push_back(m);
    }
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(jogaAteOFim(maos[i], 0, sorte));
        i = (i + 1) % maos.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(playout)->Name("busca/playout")->Unit(benchmark::kMicrosecond);

void forteDescarte(benchmark::State& estado) {
    Forte f;
    decisao(estado, f, kCasaCompra);
}
BENCHMARK(forteDescarte)->Name("niveis/forte_descarte")->Unit(benchmark::kMillisecond);

void forteCompra(benchmark::State& estado) {
    Forte f;
    decisao(estado, f, kCartasNaMao);
}
BENCHMARK(forteCompra)->Name("niveis/forte_compra")->Unit(benchmark::kMillisecond);

// The hint's search at a fixed count of worlds, time unbounded: what a world costs.
void busca(benchmark::State& estado, std::size_t cartas) {
    const auto vs = visoes(64, cartas);
    const Orcamento o{.ms = 1e9, .mundos = 64};
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(cartas == kCasaCompra ? pesaDescartes(vs[i], o).mundos
                                                       : pesaCompra(vs[i], o).mundos);
        i = (i + 1) % vs.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK_CAPTURE(busca, descarte, kCasaCompra)
    ->Name("busca/descarte_64_mundos")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(busca, compra, kCartasNaMao)
    ->Name("busca/compra_64_mundos")
    ->Unit(benchmark::kMillisecond);

// Mirrored pairs a second with 1 and 2 threads: how the arena spreads over the cores.
void arenaEmThreads(benchmark::State& estado) {
    PedidoArena p;
    p.a = TipoNivel::Esperto;
    p.b = TipoNivel::Classico;
    p.pares = 40;
    p.threads = static_cast<int>(estado.range(0));
    for (auto _ : estado) benchmark::DoNotOptimize(arena(p).maosA);
    estado.SetItemsProcessed(estado.iterations() * p.pares);
}
BENCHMARK(arenaEmThreads)
    ->Name("niveis/arena_pares")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvina

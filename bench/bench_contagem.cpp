// Counts per second of the fast count and of the try-by-try walk, on the same hands, and the
// ratio between them.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "machine/contagem.h"
#include "machine/contagem_literal.h"

namespace corvina {
namespace {

std::vector<Mesa> maosAoAcaso(int quantas, int qtd) {
    std::mt19937 gerador(12345);
    std::vector<Carta> monte;
    for (int id = 1; id <= kCartasNoJogo; ++id) monte.push_back(cartaDoId(static_cast<int16>(id)));
    std::vector<Mesa> maos(quantas);
    for (auto& mesa : maos) {
        std::shuffle(monte.begin(), monte.end(), gerador);
        mesa.qtdJog = static_cast<int16>(qtd);
        for (int i = 1; i <= qtd; ++i) poeCarta(mesa.jogValor, mesa.jogNaipe, i, monte[i - 1]);
    }
    return maos;
}

template <int16 (*Conta)(Mesa&, Lado, bool)> void contagem(benchmark::State& estado) {
    auto maos = maosAoAcaso(4096, static_cast<int>(estado.range(0)));
    const bool curta = estado.range(1) != 0;
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(Conta(maos[i], Lado::Jog, curta));
        i = (i + 1) % maos.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}

BENCHMARK(contagem<TemQuantosGruposLiteral>)
    ->Name("contagem/literal")
    ->ArgsProduct({{9, 10}, {0, 1}})
    ->ArgNames({"cartas", "curta"});
BENCHMARK(contagem<TemQuantosGrupos>)
    ->Name("contagem/rapida")
    ->ArgsProduct({{9, 10}, {0, 1}})
    ->ArgNames({"cartas", "curta"});

} // namespace
} // namespace corvina

BENCHMARK_MAIN();

// Counts per second of the fast count and of the try-by-try walk, on the same hands, and the
// ratio between them.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

#include "core/contagem.h"

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

// Both counts on the same hands in the same run: the ratio of their times is the speed-up.
void ladoALado(benchmark::State& estado) {
    auto maos = maosAoAcaso(2048, static_cast<int>(estado.range(0)));
    const bool curta = estado.range(1) != 0;
    using Relogio = std::chrono::steady_clock;
    Relogio::duration literal{}, rapida{};
    long contadas = 0;
    for (auto _ : estado) {
        int16 somaL = 0, somaR = 0;
        const auto t0 = Relogio::now();
        for (auto& m : maos)
            somaL = static_cast<int16>(somaL + TemQuantosGruposLiteral(m, Lado::Jog, curta));
        const auto t1 = Relogio::now();
        for (auto& m : maos)
            somaR = static_cast<int16>(somaR + TemQuantosGrupos(m, Lado::Jog, curta));
        const auto t2 = Relogio::now();
        if (somaL != somaR) estado.SkipWithError("the two counts disagree");
        literal += t1 - t0;
        rapida += t2 - t1;
        contadas += static_cast<long>(maos.size());
    }
    const auto ns = [&](Relogio::duration d) {
        return std::chrono::duration<double, std::nano>(d).count() / static_cast<double>(contadas);
    };
    estado.counters["literal_ns"] = ns(literal);
    estado.counters["rapida_ns"] = ns(rapida);
    estado.counters["aceleracao"] = ns(literal) / ns(rapida);
}
BENCHMARK(ladoALado)
    ->Name("contagem/lado_a_lado")
    ->ArgsProduct({{9, 10}, {0, 1}})
    ->ArgNames({"cartas", "curta"})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvina

BENCHMARK_MAIN();

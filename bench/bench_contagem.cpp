// Counts per second of the fast count and of the try-by-try walk, on the same hands, and the
// ratio between them; the same for the machine's trying of a card in nine places.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

#include "core/contagem.h"
#include "core/contagem_de_cartas.h"
#include "core/mesa.h"

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

// The machine's trying of a card in the nine places: each place counted on its own, against
// one reading of the ten cards that skips the places that can't beat the best. Same answers.
void tentativasLadoALado(benchmark::State& estado) {
    std::mt19937 gerador(777);
    std::vector<Carta> monte;
    for (int id = 1; id <= kCartasNoJogo; ++id) monte.push_back(cartaDoId(static_cast<int16>(id)));
    std::vector<std::vector<Carta>> dezes(2048);
    for (auto& dez : dezes) {
        std::shuffle(monte.begin(), monte.end(), gerador);
        dez.assign(monte.begin(), monte.begin() + kCasaCompra);
    }
    const auto umaAUma = [](std::span<const Carta> nove, Carta nova) {
        std::array<Carta, kCartasNaMao> troca{};
        std::copy(nove.begin(), nove.end(), troca.begin());
        MelhorTroca r;
        for (int i = 0; i < kCartasNaMao; ++i) {
            troca[static_cast<std::size_t>(i)] = nova;
            const int16 p = pontosDasCartas(troca, true);
            troca[static_cast<std::size_t>(i)] = nove[static_cast<std::size_t>(i)];
            if (p > r.pontos) r = {p, i};
        }
        return r;
    };
    using Relogio = std::chrono::steady_clock;
    Relogio::duration cada{}, junta{};
    long tentadas = 0;
    for (auto _ : estado) {
        int somaC = 0, somaJ = 0;
        const auto t0 = Relogio::now();
        for (const auto& d : dezes)
            somaC += umaAUma(std::span(d).first(kCartasNaMao), d.back()).casa;
        const auto t1 = Relogio::now();
        for (const auto& d : dezes)
            somaJ += melhorTroca(std::span(d).first(kCartasNaMao), d.back(), false, true).casa;
        const auto t2 = Relogio::now();
        if (somaC != somaJ) estado.SkipWithError("the two ways disagree");
        cada += t1 - t0;
        junta += t2 - t1;
        tentadas += static_cast<long>(dezes.size());
    }
    const auto ns = [&](Relogio::duration d) {
        return std::chrono::duration<double, std::nano>(d).count() / static_cast<double>(tentadas);
    };
    estado.counters["uma_a_uma_ns"] = ns(cada);
    estado.counters["de_uma_leitura_ns"] = ns(junta);
    estado.counters["aceleracao"] = ns(cada) / ns(junta);
}
BENCHMARK(tentativasLadoALado)
    ->Name("contagem/tentativas_lado_a_lado")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvina

BENCHMARK_MAIN();

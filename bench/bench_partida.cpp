// Machine turns per second, and self-played hands per second, through a table that draws nothing.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "core/jogo.h"
#include "core/vez_da_maquina.h"
#include "core/vista_nula.h"
#include "machine/autojogador.h"
#include "machine/classico.h"

namespace corvina {
namespace {

// Positions in the middle of a hand: both hands, a top of the pile, a stock of 40.
std::vector<Mesa> posicoesAoAcaso(int quantas) {
    std::mt19937 gerador(2026);
    std::vector<Carta> monte;
    for (int id = 1; id <= kCartasNoJogo; ++id) monte.push_back(cartaDoId(static_cast<int16>(id)));
    std::vector<Mesa> posicoes(quantas);
    for (auto& m : posicoes) {
        std::shuffle(monte.begin(), monte.end(), gerador);
        m.qtdJog = m.qtdMac = kCartasNaMao;
        for (int i = 1; i <= kCartasNaMao; ++i) {
            poeCarta(m.jogValor, m.jogNaipe, i, monte[i - 1]);
            poeCarta(m.macValor, m.macNaipe, i, monte[i + 8]);
        }
        m.discarteValor = monte[18].valor;
        m.discarteNaipe = monte[18].naipe;
        m.qtdBaralho = 40;
        for (int i = 1; i <= m.qtdBaralho; ++i)
            poeCarta(m.baralhoValor, m.baralhoNaipe, i, monte[18 + i]);
    }
    return posicoes;
}

void vezDaMaquina(benchmark::State& estado) {
    const auto posicoes = posicoesAoAcaso(1024);
    AcasoSemente acaso(1);
    VistaNula vista;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    std::size_t i = 0;
    for (auto _ : estado) {
        jogo.mesa = posicoes[i];
        jogo.modulo.qtdDescarte = 1;
        jogo.historico.limpa(); // each position starts a hand's history of its own
        ateOFim(macjoga(jogo));
        benchmark::DoNotOptimize(jogo.mesa.discarteValor);
        i = (i + 1) % posicoes.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(vezDaMaquina)->Name("partida/vez_da_maquina");

void autojogo(benchmark::State& estado) {
    long maos = 0;
    std::uint64_t semente = 1;
    for (auto _ : estado) maos += autojoga(semente++, 1).maos;
    estado.SetItemsProcessed(maos);
    estado.counters["maos_por_partida"] =
        static_cast<double>(maos) / static_cast<double>(estado.iterations());
}
BENCHMARK(autojogo)->Name("partida/maos_autojogadas")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvina

// The store at its limit: deleting the first of 40,000 players, the whole list shifting, in
// one write of the file; and one value written alone into a store of that size.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/lista_de_jogadores.h"
#include "players/qt/settings.h"

namespace corvina {
namespace {

constexpr int kJogadores = 40000;

// A store file holding a list of `quantos` players.
void preparaLista(const QString& arquivo, int quantos) {
    QFile::remove(arquivo);
    Settings s(arquivo);
    const LoteDeAjustes lote(s);
    for (int n = 1; n <= quantos; ++n)
        s.grava(chaveBase(), ajuste::jogador(n), "J" + std::to_string(n));
}

void BM_ApagaOPrimeiroDeUmaListaLonga(benchmark::State& estado) {
    QTemporaryDir pasta;
    const QString arquivo = pasta.filePath("Corvina.conf");
    for (auto _ : estado) {
        estado.PauseTiming();
        preparaLista(arquivo, kJogadores);
        Settings s(arquivo);
        estado.ResumeTiming();
        tiraDaLista(s, 1);
    }
    estado.counters["bytes"] = static_cast<double>(QFile(arquivo).size());
}
BENCHMARK(BM_ApagaOPrimeiroDeUmaListaLonga)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_UmValorNumArmazemCheio(benchmark::State& estado) {
    QTemporaryDir pasta;
    const QString arquivo = pasta.filePath("Corvina.conf");
    preparaLista(arquivo, kJogadores);
    Settings s(arquivo);
    int n = 0;
    for (auto _ : estado) s.grava(chaveBase(), ajuste::kVelocidade, std::to_string(++n % 15));
}
BENCHMARK(BM_UmValorNumArmazemCheio)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvina

BENCHMARK_MAIN();

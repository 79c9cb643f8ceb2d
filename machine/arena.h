#pragma once
// Two levels against each other on mirrored deals: every seeded shuffle is played twice, the
// levels changing seats, with the deal as it falls. Hands and matches are counted for each,
// and the time of every decision.

#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

#include "core/jogo.h"
#include "core/nivel.h"
#include "machine/niveis.h"

namespace corvina {

// Ninguem: the stock ran out. SemFim: the hand went past any length a hand can have when cards
// come from the stock (two seats that only ever take each other's throws), and was stopped.
enum class Vencedor { Jog, Mac, Ninguem, SemFim };

// One hand from the shuffle of `semente`, no exchange: `jog` in the player's seat (who moves
// first), `mac` in the machine's. `aoDar` is told of the table once it is dealt.
Vencedor jogaUmaMao(Nivel& jog, Nivel& mac, std::uint64_t semente,
                    const std::function<void(const Jogo&)>& aoDar = {});

// Who sits in a seat of the arena: a level, or one of the analysis players no level window
// offers: the seer (Vidente), who sees every card, and the search (`Busca`), who plays every
// move by the hint's search on worlds sampled from its view, `ms` a decision.
struct Assento {
    enum class Analise { Nenhuma, Vidente, Busca };
    Assento(TipoNivel n = TipoNivel::Classico) : nivel(n) {} // implicit: a level is a seat
    static Assento vidente() { return Assento(Analise::Vidente, 0); }
    static Assento busca(double ms) { return Assento(Analise::Busca, ms); }
    TipoNivel nivel;
    Analise analise = Analise::Nenhuma;
    double ms = 0;

  private:
    Assento(Analise a, double m) : nivel(TipoNivel::Classico), analise(a), ms(m) {}
};

struct PedidoArena {
    Assento a = TipoNivel::Forte, b = TipoNivel::Classico;
    std::uint64_t semente = 1;
    long primeiro = 0; // pairs primeiro .. primeiro + pares - 1: ranges split a long run
    long pares = 0;
    int threads = 1;
};

struct ResultadoArena {
    long pares = 0; // played to the end; fewer than asked when interrupted
    long maosA = 0, maosB = 0, semVencedor = 0;
    long semFim = 0; // of the hands without winner, those stopped for their length
    long partidasA = 0, partidasB = 0;        // first to 4, in each seat's run of hands
    double shareA = 0, ciLow = 0, ciHigh = 0; // of decided hands; 95%, over pairs
    double msMeanA = 0, msP99A = 0, msMeanB = 0, msP99B = 0;
    bool interrompida = false;
    int threads = 0; // that ran: fewer than asked when the system would start no more
};

// `parar` ends it early with the figures of the pairs played; `progresso` hears of every pair
// finished (pairs done, pairs asked), from any thread, one at a time.
ResultadoArena arena(const PedidoArena& pedido, const std::atomic<bool>* parar = nullptr,
                     const std::function<void(long, long)>& progresso = {});

// The seed of pair `i` of a run.
std::uint64_t sementeDoPar(std::uint64_t semente, long i);

} // namespace corvina

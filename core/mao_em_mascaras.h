#pragma once
// A hand of up to ten cards as bit masks of the 52 kinds, the nine slot orders the count's tries
// leave, and the candidate melds found once per hand: the pieces the fast count is made of.
// Internal to the count (contagem_de_cartas); nothing else should need them.

#include <array>
#include <cstdint>
#include <span>

#include "core/carta.h"
#include "core/contagem_de_cartas.h"

namespace corvina::mascaras {

using Mascara = std::uint64_t;
inline constexpr int kTipos = kCartasPorBaralho;
inline constexpr Mascara kTodosTipos = (Mascara{1} << kTipos) - 1;
inline constexpr int kMaxCartas = 10;
inline constexpr int kNenhuma = -1;

constexpr int tipoDe(int valor, int naipe) {
    return (naipe - 1) * kValores + (valor - 1);
}
constexpr int valorDo(int tipo) {
    return tipo % kValores + 1;
}
constexpr int naipeDo(int tipo) {
    return tipo / kValores + 1;
}

// The distinct orders the tries leave, in the order of the tries. Families: suits first with
// value rising (tries 2-4) or falling (9-12), starting at a suit; value rising (5-8) or
// falling (13-16) with suits 4, 1, 2, 3 within a value.
enum class Familia : std::uint8_t { NaipeSobe, ValorSobe, NaipeDesce, ValorDesce };
struct Ordem {
    Familia familia;
    int pinta;
};
inline constexpr std::array<Ordem, 9> kOrdens{{{Familia::NaipeSobe, 2},
                                               {Familia::NaipeSobe, 3},
                                               {Familia::NaipeSobe, 4},
                                               {Familia::ValorSobe, 1},
                                               {Familia::NaipeDesce, 1},
                                               {Familia::NaipeDesce, 2},
                                               {Familia::NaipeDesce, 3},
                                               {Familia::NaipeDesce, 4},
                                               {Familia::ValorDesce, 1}}};
inline constexpr int kOrdensCurtas = 4;
inline constexpr std::size_t kOrdemValorSobe = 3, kOrdemNaipeDesce = 4, kOrdemValorDesce = 8;

// Where a kind stands in an order.
constexpr int chave(Ordem o, int tipo) {
    const int v = valorDo(tipo), n = naipeDo(tipo);
    const int rank = (n - o.pinta + kNaipes) % kNaipes;
    switch (o.familia) {
    case Familia::NaipeSobe:
        return rank * kValores + (v - 1);
    case Familia::NaipeDesce:
        return rank * kValores + (kValores - v);
    case Familia::ValorSobe:
        return (v - 1) * kNaipes + n % kNaipes;
    case Familia::ValorDesce:
        return (kValores - v) * kNaipes + n % kNaipes;
    }
    return 0;
}

struct TabelasDeOrdem {
    std::array<std::array<std::uint8_t, kTipos>, kOrdens.size()> chaveDe{};
    std::array<std::array<std::uint8_t, kTipos>, kOrdens.size()> tipoDaChave{};
};

constexpr TabelasDeOrdem montaTabelas() {
    TabelasDeOrdem t{};
    for (std::size_t o = 0; o < kOrdens.size(); ++o) {
        for (int tipo = 0; tipo < kTipos; ++tipo) {
            const int c = chave(kOrdens[o], tipo);
            t.chaveDe[o][tipo] = static_cast<std::uint8_t>(c);
            t.tipoDaChave[o][c] = static_cast<std::uint8_t>(tipo);
        }
    }
    return t;
}
inline constexpr TabelasDeOrdem kTabelas = montaTabelas();

struct Trio {
    std::uint8_t a, b, c;
};
struct Par {
    std::uint8_t a, b;
    bool soNestaOrdem; // a wrapped dupla separada: only with a before b
};

// Candidate melds, filled from the front and read only as far as filled.
struct Listas {
    int qtdTrios = 0, qtdDuplas = 0, qtdSeparadas = 0;
    std::array<Trio, 120> trios;
    std::array<Par, 45> duplas;
    std::array<Par, 45> separadas;
};

// The masks of the hand in the four families, from which every order is laid out.
struct Mascaras {
    Mascara sobe[2]{}; // by suit from hearts, value rising: kinds held, kinds held twice
    Mascara desce[2]{};
    Mascara valor[2]{}; // by value rising, suits 4, 1, 2, 3
    Mascara valorDesce[2]{};
};

struct Mao10 {
    Mascara um = 0, dois = 0; // kinds held, kinds held twice
    Mascaras m;
    Listas todas;
    Listas disputadas;
    int16 fixoTrincas = 0, fixoPares = 0; // points of the uncontested candidates
    int16 tetoDisputado = 0;              // no order can make more of the contested ones
    Mascara envolvidos = 0;               // kinds of the contested candidates
    int qtdEnvolvidos = 0;
    std::array<std::uint8_t, kMaxCartas> listaEnvolvidos;
    Mascaras envolvidosPorFamilia; // the same kinds, as the masks of the families
};

struct Busca {
    int16 pontos = 0;
    std::uint16_t usadas = 0; // bit p: slot p+1 taken
    int qtdGrupo = 0;
    std::array<std::uint8_t, 9> grupo{}; // kinds, in the order the search took them
};

// The candidate melds of the whole hand, from its masks.
void achaCandidatos(Mao10& h);
// Splits the candidates into those every order takes alike and those the order decides.
void separaDisputadas(Mao10& h);
// Lays the hand out in order `o`: the slot (from 0) of the first copy of each kind held.
void posicoes(const Mao10& h, std::size_t o, std::array<std::uint8_t, kTipos>& pos);
// The slots of the contested kinds only in order `o`, and their sequence, which alone decides
// what they give: the rank of each among them, four bits each.
std::uint64_t posicoesDisputadas(const Mao10& h, std::size_t o,
                                 std::array<std::uint8_t, kTipos>& pos);
// The walk's answer for the order searched last: its points, and its melds' places and cards.
Contagem resultado(const Busca& b);
// Reads the hand into masks; false for a hand no deal can make (a bad card, a third copy,
// fewer than three cards), which only the walk itself can answer for.
bool leMao(std::span<const Carta> mao, Mao10& h);

} // namespace corvina::mascaras

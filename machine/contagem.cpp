#include "machine/contagem.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "machine/contagem_literal.h"
#include "machine/vale.h"

// Every try leaves the slots in an order fixed by the cards alone: a total order on the 52
// kinds of card, with the two copies of a card side by side. So the fifteen tries are only
// nine distinct orders, and each can be laid out from a bit mask of the kinds in the hand.
// The greedy search of one order takes, each time, the first free trinca (pair) in slot
// order; since a trinca is found among a handful of candidate kinds, it is the smallest slot
// triple among the candidates whose kinds still have a free copy. The candidates are found
// once per hand from the masks.

namespace corvina {

namespace {

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
                                               {Familia::ValorSobe, 0},
                                               {Familia::NaipeDesce, 1},
                                               {Familia::NaipeDesce, 2},
                                               {Familia::NaipeDesce, 3},
                                               {Familia::NaipeDesce, 4},
                                               {Familia::ValorDesce, 0}}};
inline constexpr int kOrdensCurtas = 4;

// Position of a kind in an order; the masks of a hand are built from it.
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

// What one hand offers, found once from its cards.
struct Candidatos {
    Mascara um = 0;   // kinds held
    Mascara dois = 0; // kinds held twice
    int qtdTipos = 0;
    std::array<std::uint8_t, kMaxCartas> tipos{};
    int qtdTrios = 0, qtdDuplas = 0, qtdSeparadas = 0;
    std::array<Trio, 120> trios{};
    std::array<Par, 45> duplas{};
    std::array<Par, 45> separadas{};
};

struct Busca {
    int16 pontos = 0;
    std::uint16_t usadas = 0; // bit p: slot p+1 taken
    int qtdGrupo = 0;
    std::array<std::uint8_t, 9> grupo{}; // kinds, in the order the search took them
};

// Masks of the suits per value and the values per suit, from the kinds held.
std::uint32_t naipesDoValor(Mascara um, int valor) {
    std::uint32_t s = 0;
    for (int n = 1; n <= kNaipes; ++n)
        if (um >> tipoDe(valor, n) & 1) s |= 1u << (n - 1);
    return s;
}

std::uint32_t valoresDoNaipe(Mascara um, int naipe) {
    return static_cast<std::uint32_t>(um >> ((naipe - 1) * kValores)) & ((1u << kValores) - 1);
}

void achaCandidatos(Candidatos& c) {
    for (Mascara resto = c.um; resto; resto &= resto - 1)
        c.tipos[c.qtdTipos++] = static_cast<std::uint8_t>(std::countr_zero(resto));

    auto trio = [&](int a, int b, int d) {
        c.trios[c.qtdTrios++] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                                 static_cast<std::uint8_t>(d)};
    };
    auto par = [&](auto& lista, int& qtd, int a, int b, bool soNestaOrdem) {
        lista[qtd++] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b), soNestaOrdem};
    };

    for (int v = 1; v <= kValores; ++v) {
        const std::uint32_t s = naipesDoValor(c.um, v);
        if (std::popcount(s) < 2) continue;
        for (int n1 = 1; n1 <= kNaipes; ++n1) {
            if (!(s >> (n1 - 1) & 1)) continue;
            for (int n2 = n1 + 1; n2 <= kNaipes; ++n2) {
                if (!(s >> (n2 - 1) & 1)) continue;
                par(c.duplas, c.qtdDuplas, tipoDe(v, n1), tipoDe(v, n2), false);
                for (int n3 = n2 + 1; n3 <= kNaipes; ++n3)
                    if (s >> (n3 - 1) & 1) trio(tipoDe(v, n1), tipoDe(v, n2), tipoDe(v, n3));
            }
        }
    }
    constexpr int kBitAs = kAs - 1, kBitRei = kRei - 1;
    for (int n = 1; n <= kNaipes; ++n) {
        const std::uint32_t r = valoresDoNaipe(c.um, n);
        if (std::popcount(r) < 2) continue;
        const int base = (n - 1) * kValores;
        for (std::uint32_t m = r & (r >> 1) & (r >> 2); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            trio(base + b, base + b + 1, base + b + 2);
        }
        if ((r >> kBitRei & 1) && (r >> (kBitRei - 1) & 1) && (r >> kBitAs & 1))
            trio(base + kBitRei - 1, base + kBitRei, base + kBitAs);
        for (std::uint32_t m = r & (r >> 1); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            par(c.duplas, c.qtdDuplas, base + b, base + b + 1, false);
        }
        if ((r >> kBitRei & 1) && (r >> kBitAs & 1))
            par(c.duplas, c.qtdDuplas, base + kBitAs, base + kBitRei, false);
        for (std::uint32_t m = r & (r >> 2); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            par(c.separadas, c.qtdSeparadas, base + b, base + b + 2, false);
        }
        if ((r >> kBitRei & 1) && (r >> 1 & 1)) // 13 before 2
            par(c.separadas, c.qtdSeparadas, base + kBitRei, base + 1, true);
        if ((r >> kBitAs & 1) && (r >> (kBitRei - 1) & 1)) // 1 before 12
            par(c.separadas, c.qtdSeparadas, base + kBitAs, base + kBitRei - 1, true);
    }
}

Mascara giraBlocos(Mascara m, int blocos) {
    const int desloca = blocos * kValores;
    if (desloca == 0) return m;
    return ((m >> desloca) | (m << (kTipos - desloca))) & kTodosTipos;
}

// Lays the hand out in one order: the slot (from 0) of the first copy of each kind held.
void posicoes(const Candidatos& c, const Mascara (&base)[2][2], std::size_t o,
              std::array<std::uint8_t, kTipos>& pos) {
    const Ordem ordem = kOrdens[o];
    Mascara um, dois;
    switch (ordem.familia) {
    case Familia::NaipeSobe:
    case Familia::NaipeDesce: {
        const int f = ordem.familia == Familia::NaipeSobe ? 0 : 1;
        um = giraBlocos(base[f][0], ordem.pinta - 1);
        dois = giraBlocos(base[f][1], ordem.pinta - 1);
        break;
    }
    default: {
        um = dois = 0;
        for (int i = 0; i < c.qtdTipos; ++i) {
            const Mascara bit = Mascara{1} << kTabelas.chaveDe[o][c.tipos[i]];
            um |= bit;
            if (c.dois >> c.tipos[i] & 1) dois |= bit;
        }
    }
    }
    int p = 0;
    for (Mascara resto = um; resto; resto &= resto - 1) {
        const int k = std::countr_zero(resto);
        pos[kTabelas.tipoDaChave[o][k]] = static_cast<std::uint8_t>(p);
        p += 1 + static_cast<int>(dois >> k & 1);
    }
}

struct Procura {
    const Candidatos& c;
    const std::array<std::uint8_t, kTipos>& pos;
    std::uint16_t usadas = 0;

    int livre(int tipo) const {
        const int p = pos[tipo];
        if (!(usadas >> p & 1)) return p;
        if ((c.dois >> tipo & 1) && !(usadas >> (p + 1) & 1)) return p + 1;
        return kNenhuma;
    }

    template <std::size_t N>
    int16 tomaPares(const std::array<Par, N>& lista, int qtd, int16 valor) {
        int16 total = 0;
        for (;;) {
            int melhor = 1 << 8, x = 0, y = 0;
            for (int i = 0; i < qtd; ++i) {
                const Par& par = lista[i];
                if (par.soNestaOrdem && pos[par.a] > pos[par.b]) continue;
                int pa = livre(par.a), pb = livre(par.b);
                if (pa == kNenhuma || pb == kNenhuma) continue;
                if (pa > pb) std::swap(pa, pb);
                const int codigo = pa << 4 | pb;
                if (codigo < melhor) melhor = codigo, x = pa, y = pb;
            }
            if (melhor == 1 << 8) return total;
            usadas = static_cast<std::uint16_t>(usadas | 1u << x | 1u << y);
            total = static_cast<int16>(total + valor);
        }
    }

    void procuraTrincas(Busca& b) {
        for (;;) {
            int melhor = 1 << 12;
            std::array<int, 3> casas{};
            std::array<std::uint8_t, 3> tipos{};
            for (int i = 0; i < c.qtdTrios; ++i) {
                const Trio& t = c.trios[i];
                std::array<std::pair<int, std::uint8_t>, 3> v{
                    {{livre(t.a), t.a}, {livre(t.b), t.b}, {livre(t.c), t.c}}};
                if (v[0].first == kNenhuma || v[1].first == kNenhuma || v[2].first == kNenhuma)
                    continue;
                if (v[0].first > v[1].first) std::swap(v[0], v[1]);
                if (v[1].first > v[2].first) std::swap(v[1], v[2]);
                if (v[0].first > v[1].first) std::swap(v[0], v[1]);
                const int codigo = v[0].first << 8 | v[1].first << 4 | v[2].first;
                if (codigo >= melhor) continue;
                melhor = codigo;
                for (int k = 0; k < 3; ++k) casas[k] = v[k].first, tipos[k] = v[k].second;
            }
            if (melhor == 1 << 12) return;
            for (int k = 0; k < 3; ++k) {
                usadas = static_cast<std::uint16_t>(usadas | 1u << casas[k]);
                b.grupo[b.qtdGrupo++] = tipos[k];
            }
            b.pontos = static_cast<int16>(b.pontos + kPontosTrinca);
        }
    }
};

Busca buscaNaOrdem(const Candidatos& c, const std::array<std::uint8_t, kTipos>& pos) {
    Busca b;
    Procura p{c, pos};
    p.procuraTrincas(b);
    if (b.pontos != kPontosVitoria) {
        b.pontos = static_cast<int16>(b.pontos + p.tomaPares(c.duplas, c.qtdDuplas, kPontosDupla));
        b.pontos = static_cast<int16>(
            b.pontos + p.tomaPares(c.separadas, c.qtdSeparadas, kPontosDuplaSeparada));
    }
    b.usadas = p.usadas;
    return b;
}

void deixaResultado(Mesa& mesa, Lado dequem, const Busca& b) {
    constexpr int kCasasContadas = 10;
    mesa.qtdGrupo = 0;
    for (int casa = 1; casa <= kCasasContadas; ++casa) {
        mesa.grupoValor[casa] = 0;
        mesa.grupoNaipe[casa] = 0;
        mesa.cartaLivre[casa] = !(b.usadas >> (casa - 1) & 1);
    }
    if (dequem != Lado::Jog) return;
    for (int i = 0; i < b.qtdGrupo; ++i) {
        ++mesa.qtdGrupo;
        mesa.grupoValor[mesa.qtdGrupo] = static_cast<int16>(valorDo(b.grupo[i]));
        mesa.grupoNaipe[mesa.qtdGrupo] = static_cast<int16>(naipeDo(b.grupo[i]));
    }
}

} // namespace

int16 TemQuantosGrupos(Mesa& mesa, Lado dequem, bool soTrincas) {
    const Mao mao = maoDe(mesa, dequem);
    const int q = mao.qtd;
    Candidatos c;
    bool comum = q >= 3 && q <= kMaxCartas; // a hand the game can hold
    for (int i = 1; comum && i <= q; ++i) {
        const Carta carta = cartaNa(mao.valor, mao.naipe, i);
        if (!cartaValida(carta)) {
            comum = false;
            break;
        }
        const Mascara bit = Mascara{1} << tipoDe(carta.valor, carta.naipe);
        if (c.dois & bit) comum = false; // a third copy: only the walk knows what it does
        (c.um & bit ? c.dois : c.um) |= bit;
    }
    if (!comum) return TemQuantosGruposLiteral(mesa, dequem, soTrincas);

    achaCandidatos(c);
    Mascara base[2][2]{};
    for (int i = 0; i < c.qtdTipos; ++i) {
        const int t = c.tipos[i];
        const bool duas = c.dois >> t & 1;
        const Mascara desce = Mascara{1} << chave({Familia::NaipeDesce, 1}, t);
        base[0][0] |= Mascara{1} << t;
        base[1][0] |= desce;
        if (duas) base[0][1] |= Mascara{1} << t, base[1][1] |= desce;
    }

    const std::size_t ordens = soTrincas ? kOrdensCurtas : kOrdens.size();
    std::array<std::uint8_t, kTipos> pos{};
    int16 melhor = 0;
    Busca ultima;
    for (std::size_t o = 0; o < ordens; ++o) {
        posicoes(c, base, o, pos);
        ultima = buscaNaOrdem(c, pos);
        melhor = std::max(melhor, ultima.pontos);
        if (melhor >= kPontosVitoria) break;
    }
    deixaResultado(mesa, dequem, ultima);
    return melhor;
}

} // namespace corvina

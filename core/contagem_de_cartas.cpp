#include "core/contagem_de_cartas.h"

#include <algorithm>
#include <bit>

#include "core/trincas.h"

// Why this is fast and still the same count:
// - Every try leaves the slots in an order fixed by the cards alone, a total order on the 52
//   kinds of card with the two copies of a card side by side. The fifteen tries are thus nine
//   distinct orders, each laid out from bit masks of the kinds held.
// - A greedy search takes, each time, the first free trinca (then pair) in slot order: the
//   smallest slot triple among the candidate melds whose kinds still have a free copy. The
//   candidates are found once per hand from the masks.
// - A candidate that shares no kind with any other is taken in every order, as often as its
//   kinds have copies. Only the others, the contested ones, are searched order by order, and
//   two orders that put the contested kinds in the same sequence find the same melds.
// - The group list and the free slots are those of the last order searched; that order is
//   searched once more in full to leave them.

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

// One bit, at the start of its four, for each value held in two suits or more.
Mascara valoresComDoisNaipes(Mascara porValor) {
    constexpr Mascara kUm = 0x5555555555555555ULL, kDois = 0x3333333333333333ULL,
                      kPrimeiro = 0x1111111111111111ULL;
    const Mascara pares = (porValor & kUm) + ((porValor >> 1) & kUm);
    const Mascara soma = (pares & kDois) + ((pares >> 2) & kDois); // suits held, per value
    return ((soma >> 1) | (soma >> 2)) & kPrimeiro;
}

void achaCandidatos(Mao10& h) {
    Listas& l = h.todas;
    auto trio = [&](int a, int b, int d) {
        l.trios[l.qtdTrios++] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                                 static_cast<std::uint8_t>(d)};
    };
    auto dupla = [&](int a, int b) {
        l.duplas[l.qtdDuplas++] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                                   false};
    };
    auto separada = [&](int a, int b, bool soNestaOrdem) {
        l.separadas[l.qtdSeparadas++] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                                         soNestaOrdem};
    };

    // Suits held per value: four bits a value in the value-rising mask, suit 4 first.
    const auto naipeDoBit = [](int r) { return r == 0 ? kNaipes : r; };
    for (Mascara resto = valoresComDoisNaipes(h.m.valor[0]); resto; resto &= resto - 1) {
        const int v = std::countr_zero(resto) / kNaipes + 1;
        const auto s = static_cast<unsigned>(h.m.valor[0] >> ((v - 1) * kNaipes)) & 0xFu;
        for (int r1 = 0; r1 < kNaipes; ++r1) {
            if (!(s >> r1 & 1)) continue;
            for (int r2 = r1 + 1; r2 < kNaipes; ++r2) {
                if (!(s >> r2 & 1)) continue;
                const int a = tipoDe(v, naipeDoBit(r1)), b = tipoDe(v, naipeDoBit(r2));
                dupla(a, b);
                for (int r3 = r2 + 1; r3 < kNaipes; ++r3)
                    if (s >> r3 & 1) trio(a, b, tipoDe(v, naipeDoBit(r3)));
            }
        }
    }
    constexpr int kBitAs = kAs - 1, kBitRei = kRei - 1, kBitDama = kRei - 2, kBitDois = 1;
    for (int n = 1; n <= kNaipes; ++n) {
        const int base = (n - 1) * kValores;
        const auto r = static_cast<std::uint32_t>(h.um >> base) & ((1u << kValores) - 1);
        if ((r & (r - 1)) == 0) continue; // fewer than two values
        for (std::uint32_t m = r & (r >> 1) & (r >> 2); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            trio(base + b, base + b + 1, base + b + 2);
        }
        if ((r >> kBitRei & 1) && (r >> kBitDama & 1) && (r >> kBitAs & 1))
            trio(base + kBitDama, base + kBitRei, base + kBitAs);
        for (std::uint32_t m = r & (r >> 1); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            dupla(base + b, base + b + 1);
        }
        if ((r >> kBitRei & 1) && (r >> kBitAs & 1)) dupla(base + kBitAs, base + kBitRei);
        for (std::uint32_t m = r & (r >> 2); m; m &= m - 1) {
            const int b = std::countr_zero(m);
            separada(base + b, base + b + 2, false);
        }
        if ((r >> kBitRei & 1) && (r >> kBitDois & 1))
            separada(base + kBitRei, base + kBitDois, true);
        if ((r >> kBitAs & 1) && (r >> kBitDama & 1))
            separada(base + kBitAs, base + kBitDama, true);
    }
}

// Splits the candidates into those every order takes alike and those the order decides.
void separaDisputadas(Mao10& h) {
    // Kinds in one candidate, and kinds in more than one.
    Mascara uma = 0, mais = 0;
    const auto conta = [&](Mascara bits) {
        mais |= uma & bits;
        uma |= bits;
    };
    const auto bit = [](int t) { return Mascara{1} << t; };
    const Listas& l = h.todas;
    for (int i = 0; i < l.qtdTrios; ++i) {
        const Trio& t = l.trios[i];
        conta(bit(t.a)), conta(bit(t.b)), conta(bit(t.c)); // one at a time: a trio has 3 kinds
    }
    for (int i = 0; i < l.qtdDuplas; ++i) conta(bit(l.duplas[i].a)), conta(bit(l.duplas[i].b));
    for (int i = 0; i < l.qtdSeparadas; ++i)
        conta(bit(l.separadas[i].a)), conta(bit(l.separadas[i].b));
    const auto soAqui = [&](Mascara bits) { return (bits & mais) == 0; };
    const auto copias = [&](int t) { return 1 + static_cast<int>(h.dois >> t & 1); };
    const auto envolve = [&](int t) { h.envolvidos |= Mascara{1} << t; };

    Listas& d = h.disputadas;
    for (int i = 0; i < l.qtdTrios; ++i) {
        const Trio& t = l.trios[i];
        if (soAqui(bit(t.a) | bit(t.b) | bit(t.c))) {
            h.fixoTrincas = static_cast<int16>(
                h.fixoTrincas + kPontosTrinca * std::min({copias(t.a), copias(t.b), copias(t.c)}));
            continue;
        }
        d.trios[d.qtdTrios++] = t;
        envolve(t.a), envolve(t.b), envolve(t.c);
    }
    const auto reparte = [&](const std::array<Par, 45>& de, int qtd, std::array<Par, 45>& para,
                             int& qtdPara, int16 valor) {
        for (int i = 0; i < qtd; ++i) {
            const Par& p = de[i];
            if (!p.soNestaOrdem && soAqui(bit(p.a) | bit(p.b))) {
                h.fixoPares =
                    static_cast<int16>(h.fixoPares + valor * std::min(copias(p.a), copias(p.b)));
                continue;
            }
            para[qtdPara++] = p;
            envolve(p.a), envolve(p.b);
        }
    };
    reparte(l.duplas, l.qtdDuplas, d.duplas, d.qtdDuplas, kPontosDupla);
    reparte(l.separadas, l.qtdSeparadas, d.separadas, d.qtdSeparadas, kPontosDuplaSeparada);

    // The most the contested cards could make: trincas first while three cards are left (a
    // trinca is worth more than any pairs its cards could form), then duplas, then duplas
    // separadas; each candidate at most twice, once for each copy.
    const int cartas = std::popcount(h.envolvidos) + std::popcount(h.envolvidos & h.dois);
    const int trincas = std::min(cartas / 3, 2 * d.qtdTrios);
    const int duplas = std::min((cartas - 3 * trincas) / 2, 2 * d.qtdDuplas);
    const int separadas = std::min((cartas - 3 * trincas) / 2 - duplas, 2 * d.qtdSeparadas);
    h.tetoDisputado = static_cast<int16>(kPontosTrinca * trincas + kPontosDupla * duplas +
                                         kPontosDuplaSeparada * separadas);
    for (Mascara resto = h.envolvidos; resto; resto &= resto - 1) {
        const int t = std::countr_zero(resto);
        h.listaEnvolvidos[h.qtdEnvolvidos++] = static_cast<std::uint8_t>(t);
        Mascaras& e = h.envolvidosPorFamilia;
        e.sobe[0] |= Mascara{1} << t;
        e.desce[0] |= Mascara{1} << kTabelas.chaveDe[kOrdemNaipeDesce][t];
        e.valor[0] |= Mascara{1} << kTabelas.chaveDe[kOrdemValorSobe][t];
        e.valorDesce[0] |= Mascara{1} << kTabelas.chaveDe[kOrdemValorDesce][t];
    }
}

Mascara giraBlocos(Mascara m, int blocos) {
    const int desloca = blocos * kValores;
    if (desloca == 0) return m;
    return ((m >> desloca) | (m << (kTipos - desloca))) & kTodosTipos;
}

// The masks of one family turned to an order: block rotation for the suit-first families.
const Mascara* daFamilia(const Mascaras& m, Ordem ordem, int& giro) {
    giro = 0;
    switch (ordem.familia) {
    case Familia::NaipeSobe:
        giro = ordem.pinta - 1;
        return m.sobe;
    case Familia::NaipeDesce:
        giro = ordem.pinta - 1;
        return m.desce;
    case Familia::ValorSobe:
        return m.valor;
    case Familia::ValorDesce:
        return m.valorDesce;
    }
    return m.sobe;
}

// Lays the hand out in one order: the slot (from 0) of the first copy of each kind held.
void posicoes(const Mao10& h, std::size_t o, std::array<std::uint8_t, kTipos>& pos) {
    int giro = 0;
    const Mascara* par = daFamilia(h.m, kOrdens[o], giro);
    const Mascara um = giraBlocos(par[0], giro), dois = giraBlocos(par[1], giro);
    int p = 0;
    for (Mascara resto = um; resto; resto &= resto - 1) {
        const int k = std::countr_zero(resto);
        pos[kTabelas.tipoDaChave[o][k]] = static_cast<std::uint8_t>(p);
        p += 1 + static_cast<int>(dois >> k & 1);
    }
}

// The slots of the contested kinds only, and their sequence, which alone decides what they
// give: the rank of each among them, four bits each.
std::uint64_t posicoesDisputadas(const Mao10& h, std::size_t o,
                                 std::array<std::uint8_t, kTipos>& pos) {
    int giro = 0;
    const Mascara* par = daFamilia(h.m, kOrdens[o], giro);
    const Mascara um = giraBlocos(par[0], giro), dois = giraBlocos(par[1], giro);
    const Mascara env = giraBlocos(daFamilia(h.envolvidosPorFamilia, kOrdens[o], giro)[0], giro);
    std::uint64_t assinatura = 0;
    for (int i = 0; i < h.qtdEnvolvidos; ++i) {
        const int t = h.listaEnvolvidos[i];
        const Mascara antes = (Mascara{1} << kTabelas.chaveDe[o][t]) - 1;
        pos[t] = static_cast<std::uint8_t>(std::popcount(um & antes) + std::popcount(dois & antes));
        assinatura |= static_cast<std::uint64_t>(std::popcount(env & antes)) << (4 * i);
    }
    return assinatura;
}

struct Procura {
    const Mascara dois;
    const std::array<std::uint8_t, kTipos>& pos;
    std::uint16_t usadas = 0;

    int livre(int tipo) const {
        const int p = pos[tipo];
        if (!(usadas >> p & 1)) return p;
        if ((dois >> tipo & 1) && !(usadas >> (p + 1) & 1)) return p + 1;
        return kNenhuma;
    }

    int16 tomaPares(const std::array<Par, 45>& lista, int qtd, int16 valor) {
        constexpr int kNada = 1 << 8;
        int16 total = 0;
        for (;;) {
            int melhor = kNada, x = 0, y = 0;
            for (int i = 0; i < qtd; ++i) {
                const Par& par = lista[i];
                if (par.soNestaOrdem && pos[par.a] > pos[par.b]) continue;
                int pa = livre(par.a), pb = livre(par.b);
                if (pa == kNenhuma || pb == kNenhuma) continue;
                if (pa > pb) std::swap(pa, pb);
                const int codigo = pa << 4 | pb;
                if (codigo < melhor) melhor = codigo, x = pa, y = pb;
            }
            if (melhor == kNada) return total;
            usadas = static_cast<std::uint16_t>(usadas | 1u << x | 1u << y);
            total = static_cast<int16>(total + valor);
        }
    }

    void tomaTrincas(const Listas& l, Busca& b) {
        constexpr int kNada = 1 << 12;
        for (;;) {
            int melhor = kNada;
            std::array<std::pair<int, std::uint8_t>, 3> achado{};
            for (int i = 0; i < l.qtdTrios; ++i) {
                const Trio& t = l.trios[i];
                std::array<std::pair<int, std::uint8_t>, 3> v{
                    {{livre(t.a), t.a}, {livre(t.b), t.b}, {livre(t.c), t.c}}};
                if (v[0].first == kNenhuma || v[1].first == kNenhuma || v[2].first == kNenhuma)
                    continue;
                if (v[0].first > v[1].first) std::swap(v[0], v[1]);
                if (v[1].first > v[2].first) std::swap(v[1], v[2]);
                if (v[0].first > v[1].first) std::swap(v[0], v[1]);
                const int codigo = v[0].first << 8 | v[1].first << 4 | v[2].first;
                if (codigo < melhor) melhor = codigo, achado = v;
            }
            if (melhor == kNada) return;
            for (const auto& [casa, tipo] : achado) {
                usadas = static_cast<std::uint16_t>(usadas | 1u << casa);
                b.grupo[b.qtdGrupo++] = tipo;
            }
            b.pontos = static_cast<int16>(b.pontos + kPontosTrinca);
        }
    }

    // One greedy search over the candidates given; `trincasFora` are the points of trincas
    // found apart from them, which count towards the 60 that ends a search before the pairs.
    Busca busca(const Listas& l, int16 trincasFora) {
        Busca b;
        tomaTrincas(l, b);
        if (b.pontos + trincasFora != kPontosVitoria) {
            b.pontos =
                static_cast<int16>(b.pontos + tomaPares(l.duplas, l.qtdDuplas, kPontosDupla));
            b.pontos = static_cast<int16>(
                b.pontos + tomaPares(l.separadas, l.qtdSeparadas, kPontosDuplaSeparada));
        }
        b.usadas = usadas;
        return b;
    }
};

// The walk's answer for the order searched last: its points, and its melds' places and cards.
Contagem resultado(const Busca& b) {
    Contagem c;
    c.pontos = b.pontos;
    c.usadas = b.usadas;
    c.qtdGrupo = b.qtdGrupo;
    for (int i = 0; i < b.qtdGrupo; ++i)
        c.grupo[i] =
            Carta{static_cast<int16>(valorDo(b.grupo[i])), static_cast<int16>(naipeDo(b.grupo[i]))};
    return c;
}

// Reads the hand into masks; false for a hand no deal can make (a bad card, a third copy,
// fewer than three cards), which only the walk itself can answer for.
bool leMao(std::span<const Carta> mao, Mao10& h) {
    if (mao.size() < 3 || mao.size() > kMaxCartas) return false;
    for (const Carta carta : mao) {
        if (!cartaValida(carta)) return false;
        const int t = tipoDe(carta.valor, carta.naipe);
        if (h.dois >> t & 1) return false;
        const int copia = static_cast<int>(h.um >> t & 1);
        (copia ? h.dois : h.um) |= Mascara{1} << t;
        h.m.sobe[copia] |= Mascara{1} << t;
        h.m.desce[copia] |= Mascara{1} << kTabelas.chaveDe[kOrdemNaipeDesce][t];
        h.m.valor[copia] |= Mascara{1} << kTabelas.chaveDe[kOrdemValorSobe][t];
        h.m.valorDesce[copia] |= Mascara{1} << kTabelas.chaveDe[kOrdemValorDesce][t];
    }
    return true;
}

} // namespace

namespace {

// The best of the first `ordens` orders, each searched on the contested candidates alone. Where
// one reaches 60 the search stops, and `ultima` becomes that order.
int16 melhorDasOrdens(const Mao10& h, std::size_t ordens, std::size_t& ultima) {
    std::array<std::uint64_t, kOrdens.size()> vistas{};
    std::array<int16, kOrdens.size()> valores{};
    std::size_t qtdVistas = 0;
    std::array<std::uint8_t, kTipos> pos;
    const int16 fixo = static_cast<int16>(h.fixoTrincas + h.fixoPares);
    int16 melhor = 0;
    for (std::size_t o = 0; o < ordens; ++o) {
        int16 valor = fixo;
        if (h.envolvidos != 0) {
            const std::uint64_t assinatura = posicoesDisputadas(h, o, pos);
            std::size_t v = 0;
            while (v < qtdVistas && vistas[v] != assinatura) ++v;
            if (v == qtdVistas) {
                vistas[v] = assinatura;
                valores[v] = Procura{h.dois, pos}.busca(h.disputadas, h.fixoTrincas).pontos;
                ++qtdVistas;
            }
            valor = static_cast<int16>(valor + valores[v]);
        }
        melhor = std::max(melhor, valor);
        if (melhor >= kPontosVitoria) {
            ultima = o;
            break;
        }
        if (melhor >= fixo + h.tetoDisputado) break; // no later order can do better
    }
    return melhor;
}

std::optional<Mao10> preparaMao(std::span<const Carta> mao) {
    Mao10 h;
    if (!leMao(mao, h)) return std::nullopt;
    achaCandidatos(h);
    separaDisputadas(h);
    return h;
}

// The hand less one copy of a kind, from the candidates of the whole: the candidates depend on
// the kinds held alone, so those whose kinds all remain are exactly the smaller hand's.
void semUmaCopia(const Mao10& todas, int tipo, Mao10& h) {
    h.um = todas.um;
    h.dois = todas.dois;
    h.m = todas.m;
    const int copia = static_cast<int>(h.dois >> tipo & 1);
    const Mascara fora = ~(Mascara{1} << tipo);
    (copia ? h.dois : h.um) &= fora;
    h.m.sobe[copia] &= fora;
    h.m.desce[copia] &= ~(Mascara{1} << kTabelas.chaveDe[kOrdemNaipeDesce][tipo]);
    h.m.valor[copia] &= ~(Mascara{1} << kTabelas.chaveDe[kOrdemValorSobe][tipo]);
    h.m.valorDesce[copia] &= ~(Mascara{1} << kTabelas.chaveDe[kOrdemValorDesce][tipo]);

    const auto tem = [&](auto... tipos) { return ((h.um >> tipos & 1) && ...); };
    const Listas& de = todas.todas;
    Listas& para = h.todas;
    para.qtdTrios = para.qtdDuplas = para.qtdSeparadas = 0;
    for (int i = 0; i < de.qtdTrios; ++i)
        if (const Trio& t = de.trios[i]; tem(t.a, t.b, t.c)) para.trios[para.qtdTrios++] = t;
    for (int i = 0; i < de.qtdDuplas; ++i)
        if (const Par& d = de.duplas[i]; tem(d.a, d.b)) para.duplas[para.qtdDuplas++] = d;
    for (int i = 0; i < de.qtdSeparadas; ++i)
        if (const Par& d = de.separadas[i]; tem(d.a, d.b)) para.separadas[para.qtdSeparadas++] = d;

    h.disputadas.qtdTrios = h.disputadas.qtdDuplas = h.disputadas.qtdSeparadas = 0;
    h.fixoTrincas = h.fixoPares = h.tetoDisputado = 0;
    h.envolvidos = 0;
    h.qtdEnvolvidos = 0;
    h.envolvidosPorFamilia = Mascaras{};
    separaDisputadas(h);
}

std::size_t ordensDaContagem(bool soTrincas) {
    return soTrincas ? kOrdensCurtas : kOrdens.size();
}

} // namespace

std::optional<Contagem> contaRapida(std::span<const Carta> mao, bool soTrincas) {
    const auto h = preparaMao(mao);
    if (!h) return std::nullopt;
    std::size_t ultima = ordensDaContagem(soTrincas) - 1; // searched in full below
    const int16 melhor = melhorDasOrdens(*h, ultima, ultima);
    // The group list and the free slots are those of the last order searched, in its slots.
    std::array<std::uint8_t, kTipos> pos;
    posicoes(*h, ultima, pos);
    Contagem c = resultado(Procura{h->dois, pos}.busca(h->todas, 0));
    c.pontos = std::max(melhor, c.pontos);
    return c;
}

MelhorTroca melhorTroca(std::span<const Carta> mao, Carta nova, bool descendo, bool soTrincas) {
    MelhorTroca r;
    const int q = static_cast<int>(mao.size());
    const auto casa = [&](int passo) { return descendo ? q - 1 - passo : passo; };
    const auto fica = [&](int i, int16 pontos) {
        if (pontos > r.pontos) r = {pontos, i};
    };
    std::array<Carta, kMaxCartas> dez{};
    std::optional<Mao10> todas;
    if (q >= 3 && q < kMaxCartas) {
        std::copy(mao.begin(), mao.end(), dez.begin());
        dez[static_cast<std::size_t>(q)] = nova;
        Mao10 h;
        if (leMao(std::span<const Carta>(dez.data(), static_cast<std::size_t>(q) + 1), h)) {
            achaCandidatos(h);
            todas = h;
        }
    }
    if (!todas) { // a hand no deal can make: every place counted on its own
        std::array<Carta, kMaiorMaoContada> troca{};
        const std::size_t n = std::min<std::size_t>(mao.size(), troca.size());
        std::copy_n(mao.begin(), n, troca.begin());
        for (int passo = 0; passo < static_cast<int>(n); ++passo) {
            const int i = casa(passo);
            troca[static_cast<std::size_t>(i)] = nova;
            fica(i, pontosDasCartas(std::span<const Carta>(troca.data(), n), soTrincas));
            troca[static_cast<std::size_t>(i)] = mao[static_cast<std::size_t>(i)];
        }
        return r;
    }
    Mao10 h;
    for (int passo = 0; passo < q; ++passo) {
        const int i = casa(passo);
        const Carta sai = mao[static_cast<std::size_t>(i)];
        semUmaCopia(*todas, tipoDe(sai.valor, sai.naipe), h);
        // Only a count above the best so far changes the answer.
        if (h.fixoTrincas + h.fixoPares + h.tetoDisputado <= r.pontos) continue;
        std::size_t ultima = 0;
        fica(i, melhorDasOrdens(h, ordensDaContagem(soTrincas), ultima));
    }
    return r;
}

Contagem contaCartas(std::span<const Carta> mao, bool soTrincas) {
    if (auto c = contaRapida(mao, soTrincas)) return *c;
    std::array<Carta, kMaiorMaoContada> rascunho{};
    return contaCartasLiteral(mao, rascunho, soTrincas);
}

int16 pontosDasCartas(std::span<const Carta> mao, bool soTrincas) {
    // Points alone need no full search of the last order: it is searched as the others are.
    const auto h = preparaMao(mao);
    if (!h) return contaCartas(mao, soTrincas).pontos;
    std::size_t ultima = 0;
    return melhorDasOrdens(*h, ordensDaContagem(soTrincas), ultima);
}

} // namespace corvina

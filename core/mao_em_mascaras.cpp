#include "core/mao_em_mascaras.h"

#include <algorithm>
#include <bit>

#include "core/trincas.h"

namespace corvina::mascaras {

namespace {

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

// One bit, at the start of its four, for each value held in two suits or more.
Mascara valoresComDoisNaipes(Mascara porValor) {
    constexpr Mascara kUm = 0x5555555555555555ULL, kDois = 0x3333333333333333ULL,
                      kPrimeiro = 0x1111111111111111ULL;
    const Mascara pares = (porValor & kUm) + ((porValor >> 1) & kUm);
    const Mascara soma = (pares & kDois) + ((pares >> 2) & kDois); // suits held, per value
    return ((soma >> 1) | (soma >> 2)) & kPrimeiro;
}

} // namespace

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

} // namespace corvina::mascaras

#include "core/contagem_de_cartas.h"

#include <algorithm>

#include "core/mao_em_mascaras.h"
#include "core/procura_na_ordem.h"
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

using namespace mascaras; // the count's own pieces: this file is their one user

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

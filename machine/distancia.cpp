#include "machine/distancia.h"

#include <algorithm>

namespace corvina {

namespace {

inline constexpr int kPorTrinca = 3;
inline constexpr int kTrincasPossiveis = kValores * kNaipes + kNaipes * (kValores - 1);
inline constexpr int kTrincasPorTipo = 6; // three of a value, up to three runs of a suit

using Trinca = std::array<std::uint8_t, kPorTrinca>;

struct Tabela {
    std::array<Trinca, kTrincasPossiveis> trincas{};
    std::array<std::array<std::uint8_t, kTrincasPorTipo>, kTipos> doTipo{};
    std::array<std::uint8_t, kTipos> qtdDoTipo{};
};

constexpr int tipo(int valor, int naipe) {
    return (naipe - 1) * kValores + (valor - 1);
}

constexpr Tabela montaTabela() {
    Tabela t{};
    int n = 0;
    const auto poe = [&](int a, int b, int c) {
        t.trincas[n] = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                        static_cast<std::uint8_t>(c)};
        for (int k : {a, b, c}) t.doTipo[k][t.qtdDoTipo[k]++] = static_cast<std::uint8_t>(n);
        ++n;
    };
    // One value in three suits: the suit left out names it.
    for (int v = kAs; v <= kRei; ++v)
        for (int fora = 1; fora <= kNaipes; ++fora) {
            std::array<int, kPorTrinca> k{};
            int i = 0;
            for (int s = 1; s <= kNaipes; ++s)
                if (s != fora) k[i++] = tipo(v, s);
            poe(k[0], k[1], k[2]);
        }
    // Runs of one suit, the queen-king-ace included.
    for (int s = 1; s <= kNaipes; ++s) {
        for (int v = kAs; v + 2 <= kRei; ++v) poe(tipo(v, s), tipo(v + 1, s), tipo(v + 2, s));
        poe(tipo(kRei - 1, s), tipo(kRei, s), tipo(kAs, s));
    }
    return t;
}
inline constexpr Tabela kTabela = montaTabela();

// The trincas that would take two or three cards of the hand are few; every other card of a
// best layout stands alone in a trinca of its own, with two cards still to come. So the search
// picks up to three of the few (a trinca may be picked twice, with both copies), and fills the
// places left with lone cards.
class Busca {
  public:
    Busca(const Copias& mao, const Copias& podemVir, bool comUteis)
        : resto_(mao), podemVir_(podemVir), comUteis_(comUteis) {
        std::uint64_t naMao = 0;
        for (int k = 0; k < kTipos; ++k) {
            if (mao[k] > 0) {
                naMao |= std::uint64_t{1} << k;
                naMao_[qtdNaMao_++] = static_cast<std::uint8_t>(k);
            }
            if (podemVir[k] > 0) todosQueVem_ |= std::uint64_t{1} << k;
        }
        std::array<std::uint8_t, kTrincasPossiveis> juntas{};
        for (int i = 0; i < kTrincasPossiveis; ++i) {
            for (const std::uint8_t k : kTabela.trincas[i])
                juntas[i] = static_cast<std::uint8_t>(juntas[i] + (naMao >> k & 1));
            if (juntas[i] < 2) continue;
            varias_[qtdVarias_++] = static_cast<std::uint8_t>(i);
            maisJuntas_ = std::max<int>(maisJuntas_, juntas[i]);
        }
        // Those that take three first: a good layout found early prunes the rest.
        std::stable_sort(varias_.begin(), varias_.begin() + qtdVarias_,
                         [&](int a, int b) { return juntas[a] > juntas[b]; });
    }

    Distancia resolve() {
        anda(0, kTrincasDaVitoria, 0, 0);
        Distancia d;
        d.faltam = kCartasDasTrincas - std::max(melhor_, 0);
        d.uteis = uteis_ & todosQueVem_;
        d.usadas = usadasMelhor_;
        return d;
    }

  private:
    // A card left alone: one of its trincas with both other cards still able to come.
    bool cabeSozinha(int k, const Trinca& t) const {
        for (const std::uint8_t o : t)
            if (o != k && pedidas_[o] >= podemVir_[o]) return false;
        return true;
    }

    // The places left go to lone cards, in kind order, each taking what its trinca asks.
    void completa(int trincas, int usadas, std::uint64_t faltando) {
        if (!comUteis_ && usadas + trincas <= melhor_) return;
        int sozinhas = 0;
        std::uint64_t faltamDasCapazes = 0;
        std::array<std::pair<std::uint8_t, std::uint8_t>, kTrincasDaVitoria> postas{};
        // A lone card's trinca may take the card's partners, whichever card stands alone: the
        // partners are read before any lone card asks for its own.
        if (comUteis_)
            for (int i = 0; i < qtdNaMao_; ++i) {
                const int k = naMao_[i];
                if (resto_[k] == 0) continue;
                for (int m = 0; m < kTabela.qtdDoTipo[k]; ++m) {
                    const Trinca& t = kTabela.trincas[kTabela.doTipo[k][m]];
                    if (!cabeSozinha(k, t)) continue;
                    for (const std::uint8_t o : t)
                        if (o != k) faltamDasCapazes |= std::uint64_t{1} << o;
                }
            }
        for (int i = 0; i < qtdNaMao_ && sozinhas < trincas; ++i) {
            const int k = naMao_[i];
            for (int c = 0; c < resto_[k] && sozinhas < trincas; ++c) {
                int escolhida = -1;
                for (int m = 0; m < kTabela.qtdDoTipo[k] && escolhida < 0; ++m)
                    if (cabeSozinha(k, kTabela.trincas[kTabela.doTipo[k][m]]))
                        escolhida = kTabela.doTipo[k][m];
                if (escolhida < 0) break;
                postas[sozinhas++] = {static_cast<std::uint8_t>(k),
                                      static_cast<std::uint8_t>(escolhida)};
                ++usadasAgora_[k];
                for (const std::uint8_t o : kTabela.trincas[escolhida])
                    if (o != k) ++pedidas_[o];
            }
        }
        const int total = usadas + sozinhas;
        if (total > melhor_ || (comUteis_ && total == melhor_)) {
            // Any card may start a trinca still empty; a lone card may be any of the able.
            std::uint64_t uteis = faltando;
            if (sozinhas < trincas)
                uteis = todosQueVem_;
            else if (sozinhas > 0)
                uteis |= faltamDasCapazes;
            if (total > melhor_) {
                melhor_ = total;
                uteis_ = uteis;
                usadasMelhor_ = usadasAgora_;
            } else {
                uteis_ |= uteis;
            }
        }
        for (int s = 0; s < sozinhas; ++s) {
            const auto [k, t] = postas[s];
            --usadasAgora_[k];
            for (const std::uint8_t o : kTabela.trincas[t])
                if (o != k) --pedidas_[o];
        }
    }

    void anda(int desde, int trincas, int usadas, std::uint64_t faltando) {
        completa(trincas, usadas, faltando);
        if (trincas == 0 || (!comUteis_ && melhor_ == kCartasDasTrincas)) return;
        for (int i = desde; i < qtdVarias_; ++i) {
            const Trinca& t = kTabela.trincas[varias_[i]];
            int daMao = 0;
            for (const std::uint8_t k : t) daMao += resto_[k] > 0;
            if (daMao < 2) continue;
            // The most it can still give: this trinca, and the rest at best as full as any.
            const int teto = usadas + daMao + maisJuntas_ * (trincas - 1);
            if (teto < melhor_ || (!comUteis_ && teto == melhor_)) continue;
            bool cabe = true;
            for (const std::uint8_t k : t)
                if (resto_[k] == 0 && pedidas_[k] >= podemVir_[k]) cabe = false;
            if (!cabe) continue;
            std::uint64_t falta = faltando;
            std::array<bool, kPorTrinca> tirou{};
            for (int j = 0; j < kPorTrinca; ++j) {
                const int k = t[j];
                tirou[j] = resto_[k] > 0;
                if (tirou[j]) {
                    --resto_[k];
                    ++usadasAgora_[k];
                } else {
                    ++pedidas_[k];
                    falta |= std::uint64_t{1} << k;
                }
            }
            anda(i, trincas - 1, usadas + daMao, falta);
            for (int j = 0; j < kPorTrinca; ++j) {
                const int k = t[j];
                if (tirou[j]) {
                    ++resto_[k];
                    --usadasAgora_[k];
                } else {
                    --pedidas_[k];
                }
            }
        }
    }

    Copias resto_;
    const Copias& podemVir_;
    bool comUteis_;
    Copias pedidas_{};
    Copias usadasAgora_{}, usadasMelhor_{};
    std::array<std::uint8_t, kTrincasPossiveis> varias_{};
    std::array<std::uint8_t, kTipos> naMao_{};
    int qtdNaMao_ = 0;
    int maisJuntas_ = 1; // the most cards of the hand any trinca takes
    int qtdVarias_ = 0;
    int melhor_ = -1;
    std::uint64_t uteis_ = 0, todosQueVem_ = 0;
};

} // namespace

Distancia distancia(const Copias& mao, const Copias& podemVir, bool comUteis) {
    return Busca(mao, podemVir, comUteis).resolve();
}

int parceiras(int tipo, const Copias& outras) {
    int melhor = 0;
    for (int i = 0; i < kTabela.qtdDoTipo[tipo]; ++i) {
        int junto = 0;
        for (const std::uint8_t k : kTabela.trincas[kTabela.doTipo[tipo][i]])
            if (k != tipo && outras[k] > 0) ++junto;
        melhor = std::max(melhor, junto);
    }
    return melhor;
}

} // namespace corvina

#pragma once
// One greedy search of the count in one slot order, on the candidate melds given: trincas
// first, the first free one in slot order each time, then duplas, then duplas separadas.

#include <array>
#include <cstdint>
#include <utility>

#include "core/mao_em_mascaras.h"
#include "core/trincas.h"

namespace corvina::mascaras {

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

} // namespace corvina::mascaras

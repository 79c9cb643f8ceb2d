#include "core/agrupa_mac.h"

#include <algorithm>
#include <array>

#include "core/contagem.h"
#include "core/ordenacao.h"

namespace corvina {

namespace {
// Below this the hand holds no trinca, only duplas: there is nothing to put in front.
inline constexpr int16 kMinimoParaAgrupar = 10;

template <typename Chave> void passaEstavel(Mesa& m, int de, int ate, Chave chave) {
    int n = 0;
    for (int k = de; k <= ate; ++k)
        for (int j = 1; j <= m.qtdMac; ++j)
            if (chave(j) == k) {
                ++n;
                m.auxValorMac[n] = m.macValor[j];
                m.auxNaipeMac[n] = m.macNaipe[j];
            }
    std::copy_n(m.auxValorMac.begin() + 1, m.qtdMac, m.macValor.begin() + 1);
    std::copy_n(m.auxNaipeMac.begin() + 1, m.qtdMac, m.macNaipe.begin() + 1);
}
} // namespace

void OrdenarMac(Mesa& mesa) {
    passaEstavel(mesa, 1, kNaipes, [&](int j) { return mesa.macNaipe[j]; });
    passaEstavel(mesa, kAs, kRei, [&](int j) { return mesa.macValor[j]; });
}

void agrupaMaoDaMaquina(Mesa& m) {
    OrdenarMac(m);
    if (TemQuantosGrupos(m, Lado::Mac) < kMinimoParaAgrupar) return;

    const int16 qtdJogGuardada = m.qtdJog;
    const Casas jogValorGuardado = m.jogValor, jogNaipeGuardado = m.jogNaipe;
    m.qtdJog = m.qtdMac;
    for (int i = 1; i <= kCartasNaMao; ++i) {
        m.jogValor[i] = m.macValor[i];
        m.jogNaipe[i] = m.macNaipe[i];
    }
    m.modoOrdem = 2;
    ordenar2(m);
    TemQuantosGrupos(m, Lado::Jog); // only the group list it leaves counts

    std::array<int16, kCasaCompra + 2> novoValor{}, novoNaipe{};
    std::array<bool, kCasaCompra + 1> usado{};
    int qtdNova = 0;
    for (int i = 1; i <= m.qtdGrupo; ++i) {
        for (int j = 1; j <= m.qtdJog; ++j) {
            // Twins in two trincas: the second entry must find the second copy's slot, or that
            // copy would be laid out again among the rest and some other card dropped.
            if (usado[j] || m.jogNaipe[j] != m.grupoNaipe[i] || m.jogValor[j] != m.grupoValor[i])
                continue;
            ++qtdNova;
            novoValor[qtdNova] = m.jogValor[j];
            novoNaipe[qtdNova] = m.jogNaipe[j];
            usado[j] = true;
            break;
        }
    }
    for (int j = 1; j <= m.qtdJog; ++j) {
        if (usado[j]) continue;
        ++qtdNova;
        novoValor[qtdNova] = m.jogValor[j];
        novoNaipe[qtdNova] = m.jogNaipe[j];
    }
    for (int i = 1; i <= m.qtdJog; ++i) {
        m.jogValor[i] = novoValor[i];
        m.jogNaipe[i] = novoNaipe[i];
    }
    m.qtdMac = m.qtdJog;
    for (int i = 1; i <= kCartasNaMao; ++i) {
        m.macValor[i] = m.jogValor[i];
        m.macNaipe[i] = m.jogNaipe[i];
    }

    m.qtdJog = qtdJogGuardada;
    for (int i = 1; i <= kCartasNaMao; ++i) {
        m.jogValor[i] = jogValorGuardado[i];
        m.jogNaipe[i] = jogNaipeGuardado[i];
    }
}

void AgrupaMac(Jogo& jogo) {
    agrupaMaoDaMaquina(jogo.mesa);
    jogo.vista.apresentacartasdamac(1, 0);
}

} // namespace corvina

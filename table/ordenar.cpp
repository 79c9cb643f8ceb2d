#include "table/ordenar.h"

#include <array>

#include "core/ajustes.h"
#include "core/contagem.h"
#include "core/trincas.h"
#include "core/finaliza.h"
#include "core/novojogo.h"
#include "core/ordenacao.h"
#include "core/pecas.h"
#include "core/textos.h"
#include "core/verifica_c.h"

namespace corvina {

namespace {
inline constexpr int16 kOrdens = 4;
inline constexpr int kTentativasPorToque = 2;

const std::string kSoAssistido =
    std::string("A auto ordenação das cartas é habilitada somente no 'Modo assistido' (veja em "
                "'Novo Jogo')") +
    "\n\n" + "Para ordenar as cartas manualmente clique na carta e arraste para a posição desejada";
const std::string kDicaManual = std::string("Você pode também ordenar as cartas manualmente") +
                                "\n" + "Basta clicar na carta e arrastar para a posição desejada";
inline constexpr const char* kCaso0 = "Case 0";

int16 proxima(int16 ordem) {
    return static_cast<int16>(ordem >= kOrdens ? 1 : ordem + 1);
}

void ordenaPor(Mesa& m, int16 ordem) {
    switch (ordem) {
    case 1:
        ordenarEX(m, 2, 1, Lado::Jog);
        break; // value rising
    case 2:
        ordenarEX(m, 1, 3, Lado::Jog);
        break; // diamonds, spades, hearts, clubs
    case 3:
        ordenarEX(m, 2, 3, Lado::Jog);
        break; // value rising
    default:
        ordenarEX(m, 1, 1, Lado::Jog);
        break; // hearts, clubs, diamonds, spades
    }
}

// The cards of the group list first, in its order, then the rest as they stand.
void trincasAFrente(Mesa& m) {
    std::array<int16, kCasaCompra + 1> novoValor{}, novoNaipe{};
    std::array<bool, kCasaCompra + 1> usado{};
    int p = 0;
    const auto toma = [&](int j) {
        ++p;
        novoValor[p] = m.jogValor[j];
        novoNaipe[p] = m.jogNaipe[j];
        usado[j] = true;
    };
    for (int k = 1; k <= m.qtdGrupo; ++k)
        for (int j = 1; j <= m.qtdJog; ++j)
            if (!usado[j] && m.jogNaipe[j] == m.grupoNaipe[k] && m.jogValor[j] == m.grupoValor[k]) {
                toma(j);
                break;
            }
    for (int j = 1; j <= m.qtdJog; ++j)
        if (!usado[j]) toma(j);
    for (int j = 1; j <= m.qtdJog; ++j) {
        m.jogValor[j] = novoValor[j];
        m.jogNaipe[j] = novoNaipe[j];
    }
}
} // namespace

std::string legendaDaOrdem(int16 ordemAuto) {
    return ordemAuto == 0 ? std::string(texto::kAuto)
                          : std::string(texto::kAuto) + " " + std::to_string(ordemAuto);
}

void Label4_Click(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    if (jogo.maosEmJogo) return; // the machine is playing: its turn must end first
    if (jogo.modulo.assistido != 1) {
        v.caixaMensagem(kSoAssistido, kEstiloSimples, "");
        return;
    }
    const Casas salvaNaipe = m.jogNaipe, salvaValor = m.jogValor;
    const auto restaura = [&] {
        m.jogNaipe = salvaNaipe;
        m.jogValor = salvaValor;
    };
    v.habilitaPeca(peca::kLabel4, false);
    v.mostraPeca(peca::kPicmover, false);
    m.ordemAuto = proxima(m.ordemAuto);
    const int16 valorAntes = TemQuantosGrupos(m, Lado::Jog);

    for (int tentativas = 1;; ++tentativas) {
        if (tentativas > kTentativasPorToque) {
            // Two orders failed to show all the trincas: the hand goes back as it was.
            v.legendaOrdenar(texto::kAuto);
            m.ordemAuto = 0;
            v.habilitaPeca(peca::kLabel4, true);
            restaura();
            v.apresentacartasdojog(1, m.qtdJog);
            return;
        }
        ordenaPor(m, m.ordemAuto);
        if (!VerificaC(m, salvaNaipe, salvaValor)) {
            v.caixaMensagem(kCaso0, kEstiloSimples, "");
            v.habilitaPeca(peca::kLabel4, true);
            return;
        }
        if (valorAntes < kPontosTrinca) {
            v.legendaOrdenar(legendaDaOrdem(m.ordemAuto));
            v.apresentacartasdojog(1, m.qtdJog);
            break;
        }
        const int16 valorOrdem = ContaGrupos(m, Lado::Jog);
        if ((valorOrdem / kPontosTrinca) * kPontosTrinca <
            (valorAntes / kPontosTrinca) * kPontosTrinca) {
            m.ordemAuto = proxima(m.ordemAuto); // this order hides a trinca: try the next
            continue;
        }
        trincasAFrente(m);
        if (!VerificaC(m, salvaNaipe, salvaValor)) {
            m.ordemAuto = 0;
            restaura();
        }
        v.legendaOrdenar(legendaDaOrdem(m.ordemAuto));
        v.apresentacartasdojog(1, m.qtdJog);
        v.mostraTrincas(legendaTrincas(valorAntes));
        if (valorAntes >= kPontosVitoria && m.qtdJog == kCartasNaMao) {
            v.habilitaPeca(peca::kLabel4, true);
            finaliza(jogo, Lado::Jog);
            novojogo(jogo);
            return;
        }
        break;
    }
    if (!jogo.modulo.avisoOrdenar) {
        v.caixaMensagem(kDicaManual, kEstiloSimples, "");
        v.gravaAjuste(chaveBase(), ajuste::kAvisoOrdenar, "True");
        jogo.modulo.avisoOrdenar = true;
    }
    v.habilitaPeca(peca::kLabel4, true);
}

} // namespace corvina

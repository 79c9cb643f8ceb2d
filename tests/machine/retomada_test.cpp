// Kept matches and hand logs, over seeded whole matches: a table kept as text at any moment the
// player is to move, and laid out on a second table through the offer to play on, is the same
// table and plays the rest of the hand the same way; and every throw of the log is seen from the
// very view the thrower had.

#include <gtest/gtest.h>

#include <random>

#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/estado_da_mao.h"
#include "core/novojogo.h"
#include "core/vista_nula.h"
#include "machine/esperto.h"
#include "machine/partida_em_texto.h"

namespace corvina {
namespace {

class VistaComGuardada : public VistaNula {
  public:
    std::optional<PartidaGuardada> guardada;
    bool partidaGuardada(const std::string& nome, PartidaGuardada& p) override {
        if (!guardada || guardada->nome != nome) return false;
        p = *guardada;
        guardada.reset(); // a match ends where it is dropped: it is offered once
        return true;
    }
};

struct Mesa {
    explicit Mesa(std::uint64_t semente) : acaso(semente), jogo(vista, acaso, esperto) {
        leConfig(jogo);
        jogo.modulo.nomeJogador = "Ana";
        jogo.modulo.nivel = TipoNivel::Esperto;
        vista.aoPerguntar = [](const std::string&) { return kBotaoSim; };
        vista.aoAbrirJanela = [this](Janela j) {
            if (j == Janela::FrmPlacar) encerrada = jogo.maos.back();
        };
    }
    AcasoSemente acaso;
    VistaComGuardada vista;
    Esperto esperto;
    Jogo jogo;
    std::optional<RegistroDaMao> encerrada; // the last hand a score window closed
};

// Half a turn of the player, the choices drawn from `g`: false once the hand is over.
bool meiaVez(Mesa& t, std::mt19937& g, std::optional<VisaoDoNivel>* visto = nullptr) {
    corvina::Mesa& m = t.jogo.mesa;
    const std::vector<Carta> monte = t.jogo.registro.monte;
    t.encerrada.reset();
    if (m.qtdJog == kCartasNaMao) {
        if (t.jogo.modulo.qtdDescarte > 0 && g() % 3 == 0)
            ateOFim(Discartado_Click(t.jogo));
        else
            ateOFim(costas2_Click(t.jogo));
    } else {
        if (visto) *visto = visaoDe(t.jogo, Lado::Jog);
        ateOFim(descartaJog(t.jogo, static_cast<int16>(g() % kCasaCompra + 1)));
    }
    if (t.jogo.registro.monte == monte) return true;
    if (!t.encerrada) t.encerrada = t.jogo.maos.back(); // the stock ran out: no score window
    return false;
}

RegistroDaMao ateOFimDaMao(Mesa& t, std::mt19937& g) {
    while (meiaVez(t, g)) {
    }
    return *t.encerrada;
}

// Everything of the table a kept match must bring back, as one text.
std::string retrato(const Jogo& j) {
    const corvina::Mesa& m = j.mesa;
    const Historico& h = j.historico;
    std::string t = escreveCartas(cartasDe(m.jogValor, m.jogNaipe, m.qtdJog)) + "|" +
                    escreveCartas(cartasDe(m.macValor, m.macNaipe, m.qtdMac)) + "|";
    for (int i = 1; i <= m.qtdBaralho; ++i)
        t += escreveCarta(cartaNa(m.baralhoValor, m.baralhoNaipe, i)) + " ";
    if (!h.descartes.empty()) t += "|" + escreveCarta({m.discarteValor, m.discarteNaipe});
    t += "|" + std::to_string(j.modulo.qtdDescarte) + " " + std::to_string(j.modulo.pontosJog) +
         " " + std::to_string(j.modulo.pontosMac) + " " +
         std::to_string(static_cast<int>(j.modulo.nivel)) + "|" + escreveCartas(h.descartes) + "|" +
         escreveCartas(h.tomadas[0]) + "|" + escreveCartas(h.tomadas[1]) + "|" +
         std::to_string(h.topoTomado) + std::to_string(h.ultimaTomada[0].value_or(999)) + " " +
         std::to_string(h.ultimaTomada[1].value_or(999)) + "|";
    for (const Lado l : h.autores) t += chaveDoLado(l);
    return t + "|" + escreveMaos(j.maos);
}

// A side's view, as one text.
std::string retrato(const VisaoDoNivel& v) {
    return escreveCartas(v.mao) + "|" + (v.topo ? escreveCarta(*v.topo) : "") + "|" +
           escreveCartas(v.descartes) + "|" + escreveCartas(v.tomadasPeloOutro) + "|" +
           escreveCartas(v.tomadasProprias) + "|" + escreveCartas(v.descartesDoOutro) + "|" +
           std::to_string(v.monte) + " " + std::to_string(v.pontosProprios) + " " +
           std::to_string(v.pontosDoOutro);
}

TEST(Retomada, AKeptMatchIsTheSameTableAndPlaysOnAlike) {
    for (const unsigned semente : {1u, 2u, 3u, 4u}) {
        SCOPED_TRACE(semente);
        Mesa a(semente);
        Form_Activate(a.jogo);
        std::mt19937 g(semente);
        int guardadas = 0, lances = 0;
        for (int passo = 0; passo < 400 && !HasFailure(); ++passo) {
            if (g() % 7 == 0) {
                // Kept as the database keeps it, offered and taken at a new table.
                const std::string texto = escrevePartida(guardaDe(a.jogo));
                Mesa b(semente + 100);
                b.vista.guardada = lePartida(texto);
                ASSERT_TRUE(b.vista.guardada) << texto;
                novojogo(b.jogo);
                EXPECT_EQ(retrato(a.jogo), retrato(b.jogo));
                EXPECT_EQ(escrevePartida(guardaDe(b.jogo)), texto);
                std::mt19937 gb = g;
                const RegistroDaMao fimB = ateOFimDaMao(b, gb);
                EXPECT_EQ(escreveRegistro(ateOFimDaMao(a, g)), escreveRegistro(fimB));
                ++guardadas;
                continue;
            }
            std::optional<VisaoDoNivel> visto;
            const std::size_t lance = a.jogo.registro.lances.size() - 1;
            const bool segue = meiaVez(a, g, &visto);
            if (!visto) continue;
            // The throw just made, read back from the log of its hand.
            const RegistroDaMao& r = segue ? a.jogo.registro : *a.encerrada;
            const auto lida = visaoNoLance(r, lance);
            ASSERT_TRUE(lida);
            EXPECT_EQ(retrato(*lida), retrato(*visto));
            ++lances;
        }
        EXPECT_GT(guardadas, 20);
        EXPECT_GT(lances, 100);
    }
}

} // namespace
} // namespace corvina

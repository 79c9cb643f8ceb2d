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

void confereIgual(const Jogo& a, const Jogo& b) {
    const corvina::Mesa &x = a.mesa, &y = b.mesa;
    EXPECT_EQ(cartasDe(x.jogValor, x.jogNaipe, x.qtdJog),
              cartasDe(y.jogValor, y.jogNaipe, y.qtdJog));
    EXPECT_EQ(cartasDe(x.macValor, x.macNaipe, x.qtdMac),
              cartasDe(y.macValor, y.macNaipe, y.qtdMac));
    ASSERT_EQ(x.qtdBaralho, y.qtdBaralho);
    for (int i = 1; i <= x.qtdBaralho; ++i)
        EXPECT_EQ(cartaNa(x.baralhoValor, x.baralhoNaipe, i),
                  cartaNa(y.baralhoValor, y.baralhoNaipe, i));
    EXPECT_EQ(a.modulo.qtdDescarte, b.modulo.qtdDescarte);
    if (!a.historico.descartes.empty()) {
        EXPECT_EQ(Carta(x.discarteValor, x.discarteNaipe), Carta(y.discarteValor, y.discarteNaipe));
    }
    EXPECT_EQ(a.modulo.pontosJog, b.modulo.pontosJog);
    EXPECT_EQ(a.modulo.pontosMac, b.modulo.pontosMac);
    EXPECT_EQ(a.modulo.nivel, b.modulo.nivel);
    EXPECT_EQ(a.historico.descartes, b.historico.descartes);
    EXPECT_EQ(a.historico.autores, b.historico.autores);
    EXPECT_EQ(a.historico.tomadas, b.historico.tomadas);
    EXPECT_EQ(a.historico.topoTomado, b.historico.topoTomado);
    EXPECT_EQ(a.historico.ultimaTomada, b.historico.ultimaTomada);
    EXPECT_EQ(escreveMaos(a.maos), escreveMaos(b.maos));
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
                confereIgual(a.jogo, b.jogo);
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
            EXPECT_EQ(lida->mao, visto->mao);
            EXPECT_EQ(lida->topo, visto->topo);
            EXPECT_EQ(lida->descartes, visto->descartes);
            EXPECT_EQ(lida->tomadasPeloOutro, visto->tomadasPeloOutro);
            EXPECT_EQ(lida->tomadasProprias, visto->tomadasProprias);
            EXPECT_EQ(lida->descartesDoOutro, visto->descartesDoOutro);
            EXPECT_EQ(lida->monte, visto->monte);
            EXPECT_EQ(lida->pontosProprios, visto->pontosProprios);
            ++lances;
        }
        EXPECT_GT(guardadas, 20);
        EXPECT_GT(lances, 100);
    }
}

} // namespace
} // namespace corvina

// Whole matches from fixed seeds, the player's side driven by a policy through the table's own
// operations, with the state of the table checked at every call it makes and after every turn.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

#include "core/ajustes.h"
#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/visao_do_nivel.h"
#include "core/vista_nula.h"
#include "machine/autojogador.h"
#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"

namespace corvina {
namespace {

// A table that draws nothing and keeps the size of the pile by the pictures it is told to
// move: a card onto the pile, the top taken away, an empty pile at a new hand.
class VistaVigia : public VistaNula {
  public:
    void copiaFigura(Peca destino, Peca origem) override {
        VistaNula::copiaFigura(destino, origem);
        if (destino == Peca{Parte::antes} && origem == Peca{Parte::Discartado}) ++pilha;
        if (destino == Peca{Parte::Discartado} && origem == Peca{Parte::antes}) --pilha;
        if (destino == Peca{Parte::Discartado} && origem == Peca{Parte::vazio}) pilha = 0;
    }
    int pilha = 0;
};

using Contagem = std::array<int, kCartasPorBaralho>;

void tira(Contagem& c, const Casas& valor, const Casas& naipe, int qtd) {
    for (int i = 1; i <= qtd; ++i) --c[(naipe[i] - 1) * kValores + valor[i] - 1];
}

Contagem semDono(const Mesa& m) {
    Contagem c;
    c.fill(2);
    tira(c, m.jogValor, m.jogNaipe, m.qtdJog);
    tira(c, m.macValor, m.macNaipe, m.qtdMac);
    for (int i = 1; i <= m.qtdBaralho; ++i)
        --c[(m.baralhoNaipe[i] - 1) * kValores + m.baralhoValor[i] - 1];
    return c;
}

// What must hold at any moment of a hand, flights and the machine's turn included.
void confereSempre(const Jogo& jogo) {
    const Mesa& m = jogo.mesa;
    if (m.qtdJog == 0) return; // nothing dealt yet
    ASSERT_TRUE(m.qtdJog == 9 || m.qtdJog == 10) << m.qtdJog;
    ASSERT_TRUE(m.qtdMac == 9 || m.qtdMac == 10) << m.qtdMac;
    ASSERT_FALSE(m.qtdJog == 10 && m.qtdMac == 10);
    ASSERT_GE(m.qtdBaralho, 0);
    ASSERT_LE(m.qtdBaralho, kCartasNoMonte);
    for (const int n : semDono(m)) ASSERT_GE(n, 0) << "a card is held more often than it exists";
    ASSERT_GE(jogo.modulo.pontosJog, 0);
    ASSERT_LE(jogo.modulo.pontosJog, kPontosDaPartida);
    ASSERT_LE(jogo.modulo.pontosMac, kPontosDaPartida);
}

// What must hold between turns: nine and nine, and every card in a hand, the stock or the pile.
void confereEntreVezes(const Jogo& jogo, const VistaVigia& vista) {
    const Mesa& m = jogo.mesa;
    ASSERT_EQ(m.qtdJog, 9);
    ASSERT_EQ(m.qtdMac, 9);
    ASSERT_FALSE(jogo.maosEmJogo);
    const Contagem resto = semDono(m);
    int naPilha = 0;
    for (const int n : resto) naPilha += n;
    ASSERT_EQ(naPilha, vista.pilha) << "hands + stock + pile must be the 104 cards";
    ASSERT_GE(jogo.modulo.qtdDescarte, vista.pilha > 0 ? 1 : 0);
    if (vista.pilha > 0) {
        ASSERT_GE(resto[(m.discarteNaipe - 1) * kValores + m.discarteValor - 1], 1)
            << "the top of the pile is a card of the pile";
    }
    ASSERT_LT(jogo.modulo.pontosJog, kPontosDaPartida);
    ASSERT_LT(jogo.modulo.pontosMac, kPontosDaPartida);

    // The pile is what was thrown less what was taken back: the history misses nothing.
    Contagem naMesa{};
    for (const Carta c : jogo.historico.descartes) ++naMesa[(c.naipe - 1) * kValores + c.valor - 1];
    for (const auto& tomadas : jogo.historico.tomadas)
        for (const Carta c : tomadas) --naMesa[(c.naipe - 1) * kValores + c.valor - 1];
    ASSERT_EQ(naMesa, resto) << "the discards less the takes are the pile";
    // Each side's view holds its own hand and what the other showed, nothing else.
    for (const Lado lado : {Lado::Jog, Lado::Mac}) {
        const VisaoDoNivel v = visaoDe(jogo, lado);
        const Lado outro = lado == Lado::Jog ? Lado::Mac : Lado::Jog;
        const Mao mao = maoDe(const_cast<Mesa&>(m), lado);
        ASSERT_EQ(v.mao.size(), static_cast<std::size_t>(mao.qtd));
        for (int i = 1; i <= mao.qtd; ++i)
            ASSERT_EQ(v.mao[i - 1], cartaNa(mao.valor, mao.naipe, i));
        ASSERT_EQ(v.tomadasPeloOutro, jogo.historico.tomadasPor(outro));
        ASSERT_EQ(v.tomadasProprias, jogo.historico.tomadasPor(lado));
        ASSERT_EQ(v.descartesDoOutro.size(),
                  std::count(jogo.historico.autores.begin(), jogo.historico.autores.end(), outro));
        ASSERT_EQ(v.topo.has_value(), jogo.modulo.qtdDescarte > 0) << "between turns it lies free";
        if (v.topo) {
            ASSERT_EQ(*v.topo, jogo.historico.descartes.back());
        }
        ASSERT_EQ(v.monte, m.qtdBaralho);
    }
}

// Random draws and random discards: every path of the player's turn, good and bad.
void jogaAoAcaso(Jogo& jogo, std::mt19937& g) {
    if (jogo.modulo.qtdDescarte > 0 && g() % 2 == 0)
        ateOFim(Discartado_Click(jogo));
    else
        ateOFim(costas2_Click(jogo));
    if (jogo.mesa.qtdJog != kCasaCompra) return; // the stock was spent
    ateOFim(descartaJog(jogo, static_cast<int16>(g() % kCasaCompra + 1)));
}

enum class Maquina { Classico, Esperto, Forte };

struct Politica {
    const char* nome;
    bool aoAcaso;
    Maquina maquina = Maquina::Classico; // who plays the machine's seat
};

std::unique_ptr<Nivel> nivelDa(Maquina m) {
    if (m == Maquina::Esperto) return std::make_unique<Esperto>();
    // Two candidates: the test is of what the level does to the table, not of its strength.
    if (m == Maquina::Forte) return std::make_unique<Forte>(ParametrosForte{.candidatos = 2});
    return std::make_unique<Classico>();
}

class PartidasTest : public testing::TestWithParam<std::tuple<Politica, unsigned>> {};

TEST_P(PartidasTest, TableStaysSoundThroughWholeMatches) {
    const auto [politica, semente] = GetParam();
    AcasoSemente acaso(semente);
    VistaVigia vista;
    const auto maquina = nivelDa(politica.maquina);
    Jogo jogo(vista, acaso, *maquina);
    leConfig(jogo);
    jogo.modulo.nomeJogador = "Ana";
    jogo.modulo.distribuicaoJusta = politica.maquina != Maquina::Classico;
    std::mt19937 g(semente);

    int partidas = 0, maos = 0;
    vista.aCadaChamada = [&] { confereSempre(jogo); };
    vista.aoAbrirJanela = [&](Janela janela) {
        if (janela == Janela::FrmPlacar) ++maos;
        if (janela == Janela::FrmNome && jogo.mesa.jaAtivada && jogo.mesa.qtdJog > 0) ++partidas;
    };
    Form_Activate(jogo);
    constexpr int kPartidas = 3;
    long turnos = 0;
    while (partidas < kPartidas && !HasFatalFailure()) {
        ASSERT_LT(++turnos, 20000) << "the matches never ended";
        if (politica.aoAcaso)
            jogaAoAcaso(jogo, g);
        else
            jogaPeloJogador(jogo);
        confereEntreVezes(jogo, vista);
    }
    const std::string chave = chaveJogador("Ana");
    const long v = numeroDoTexto(vista.armazem.le(chave, "Vitorias", "0"));
    const long d = numeroDoTexto(vista.armazem.le(chave, "Derrotas", "0"));
    EXPECT_EQ(v + d, kPartidas);
    EXPECT_EQ(numeroDoTexto(vista.armazem.le(chave, "Saldo", "0")), v - d);
    EXPECT_GE(maos, kPartidas * 4);
}

INSTANTIATE_TEST_SUITE_P(
    Sementes, PartidasTest,
    testing::Combine(testing::Values(Politica{"regra", false}, Politica{"acaso", true},
                                     Politica{"esperto", false, Maquina::Esperto},
                                     Politica{"forte", true, Maquina::Forte}),
                     testing::Values(1u, 2u, 3u, 5u, 8u, 13u)),
    [](const auto& info) {
        return std::string(std::get<0>(info.param).nome) + "_" +
               std::to_string(std::get<1>(info.param));
    });

// The classic game with its defaults, the deal's exchange included, plays as it always has:
// these figures were taken before the levels came in, and no level may move them (nor any
// chance that the seed doesn't give).
TEST(Autojogo, TheClassicGamePlaysAsItAlwaysHas) {
    const ResumoAutojogo r = autojoga(1, 30);
    EXPECT_EQ(r.maos, 175);
    EXPECT_EQ(r.maosJog, 81);
    EXPECT_EQ(r.maosMac, 94);
    EXPECT_EQ(r.trocas, 21);
    EXPECT_EQ(r.partidasJog, 14);
    EXPECT_EQ(r.partidasMac, 16);
}

} // namespace
} // namespace corvina

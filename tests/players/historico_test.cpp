// The players' history of matches: the statistics of each column against a plain count of the
// matches, the cap that folds old matches into totals, and a damaged or hostile history set
// aside.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>
#include <sstream>

#include "apoio/sql_bruto.h"
#include "players/banco_do_jogo.h"
#include "players/qt/settings.h"
#include "players/quadro_de_estatisticas.h"

namespace corvina {
namespace {

// "c+ c+ f- cj+ e-": the level's letter, "j" for the fair deal, and "+" won or "-" lost; the
// matches won 4 to 1 and lost 2 to 4, one a day.
std::vector<PartidaDoHistorico> partidas(const std::string& texto) {
    std::vector<PartidaDoHistorico> ps;
    std::istringstream in(texto);
    for (std::string p; in >> p;) {
        const TipoNivel n = p[0] == 'c'   ? TipoNivel::Classico
                            : p[0] == 'e' ? TipoNivel::Esperto
                                          : TipoNivel::Forte;
        const bool venceu = p.back() == '+';
        ps.push_back(
            {static_cast<int>(ps.size()), n, p[1] == 'j', venceu, venceu ? 4 : 2, venceu ? 1 : 4});
    }
    return ps;
}

TEST(HistoricoDePartidas, EachColumnCountsItsOwnMatchesAndStreaks) {
    const struct {
        const char* caso;
        const char* jogadas;
        ColunaDoHistorico coluna;
        long jogadasNaColuna, vitorias, sequencia, maiorV, maiorD;
    } casos[] = {
        {"nothing played", "", {TipoNivel::Forte, true}, 0, 0, 0, 0, 0},
        {"a loss at Forte doesn't break the streak at Clássico",
         "c+ c+ f- c+",
         {TipoNivel::Classico, false},
         3,
         3,
         3,
         3,
         0},
        {"nor is it counted there", "c+ c+ f- c+", {TipoNivel::Forte, true}, 1, 0, -1, 0, 1},
        {"the fair deal apart", "c+ cj- cj- c+ cj+", {TipoNivel::Classico, true}, 3, 1, 1, 1, 2},
        {"the longest run stays once broken",
         "e+ e+ e+ e- e+ e- e- e- e- e+",
         {TipoNivel::Esperto, true},
         10,
         5,
         1,
         3,
         4},
    };
    for (const auto& c : casos) {
        HistoricoDePartidas h;
        for (const auto& p : partidas(c.jogadas)) h.registra(p);
        const Estatisticas e = h.estatisticas(c.coluna);
        EXPECT_EQ(e.jogadas, c.jogadasNaColuna) << c.caso;
        EXPECT_EQ(e.vitorias, c.vitorias) << c.caso;
        EXPECT_EQ(e.derrotas, c.jogadasNaColuna - c.vitorias) << c.caso;
        EXPECT_EQ(e.sequencia, c.sequencia) << c.caso;
        EXPECT_EQ(e.maiorSequenciaDeVitorias, c.maiorV) << c.caso;
        EXPECT_EQ(e.maiorSequenciaDeDerrotas, c.maiorD) << c.caso;
        EXPECT_EQ(e.maosGanhas, 4 * c.vitorias + 2 * (c.jogadasNaColuna - c.vitorias)) << c.caso;
    }
}

// Thousands of matches at random: the capped history, written and read back, gives each
// column the figures of a plain count over every match ever played.
TEST(HistoricoDePartidas, FoldingTheOldMatchesKeepsEveryFigure) {
    std::mt19937 sorte(61);
    HistoricoDePartidas h;
    std::array<Estatisticas, kColunasDoHistorico> contadas{};
    for (int i = 0; i < 3500; ++i) {
        const PartidaDoHistorico p{
            i / 3,           kNiveisDoJogo[sorte() % 3].tipo, sorte() % 2 == 0,
            sorte() % 5 < 3, static_cast<int>(sorte() % 5),   static_cast<int>(sorte() % 5)};
        h.registra(p);
        contadas[indiceDaColuna({p.nivel, p.justa || p.nivel != TipoNivel::Classico})].soma(p);
        if (i % 500 != 499) continue;
        const TextoDoHistorico t = escreveHistorico(h);
        const auto lido = leHistorico(t.partidas, t.antigas);
        ASSERT_TRUE(lido) << "after " << i + 1;
        EXPECT_EQ(*lido, h);
        EXPECT_LE(lido->partidas.size(), kPartidasNoHistorico);
        for (const DadosDoNivel& d : kNiveisDoJogo)
            for (const bool justa : {false, true})
                EXPECT_EQ(lido->estatisticas({d.tipo, justa}),
                          contadas[indiceDaColuna({d.tipo, justa})])
                    << "after " << i + 1;
    }
    // The codes stored for ever: a history of an earlier version reads as it was written.
    const auto antiga = leHistorico("000cnv41000ejd14000fnv40", "ej,2,1,1,5,6,-1,1,1,9");
    ASSERT_TRUE(antiga);
    EXPECT_EQ(antiga->estatisticas({TipoNivel::Esperto, true}).jogadas, 3);
}

// Hostile or damaged histories, met in the database or in a store of an earlier version: kept
// aside as they were, never used, and a new history begins.
TEST(HistoricoDePartidas, ADamagedHistoryIsKeptAsideAndANewOneBegins) {
    const std::string boa = escreveHistorico([] {
                                HistoricoDePartidas h;
                                for (const auto& p : partidas("c+ e- f+")) h.registra(p);
                                return h;
                            }())
                                .partidas;
    const struct {
        const char* caso;
        std::string partidas, antigas;
    } casos[] = {
        {"a broken entry", boa.substr(0, boa.size() - 1), ""},
        {"a level no version wrote", "000xnv41", ""},
        {"five hands won", "000cnv51", ""},
        {"more than the cap", std::string(8 * (kPartidasNoHistorico + 1), '0'), ""},
        {"totals that don't add up", boa, "cn,3,1,1,0,0,0,1,1,5"},
        {"totals cut short", boa, "cn,3,1,2"},
        {"a streak of the lowest number", boa, "cn,1,1,0,0,0,-9223372036854775808,0,0,0"},
        {"a streak longer than the matches", boa, "cn,2,2,0,0,0,3,2,0,5"},
        {"counts past a billion", boa, "cn,2000000000,2000000000,0,0,0,0,0,0,0"},
    };
    QTemporaryDir pasta;
    for (const auto& c : casos) {
        const std::string db = pasta.filePath(QString("%1.db").arg(&c - casos)).toStdString();
        ASSERT_TRUE(BancoDoJogo(db).importaHistorico("Bia", boa, "")) << c.caso;
        teste::sqlBruto(db, "UPDATE historicos SET partidas = ?, antigas = ?", c.partidas,
                        c.antigas);
        BancoDoJogo banco(db);
        EXPECT_TRUE(banco.historico("Bia").partidas.empty()) << c.caso;
        banco.registraPartida("Bia", partidas("f+")[0], std::nullopt);
        EXPECT_EQ(banco.historico("BIA").partidas.size(), 1u) << c.caso;
        EXPECT_TRUE(banco.importaHistorico("Ana", c.partidas, c.antigas)) << c.caso;
        EXPECT_TRUE(banco.historico("Ana").partidas.empty()) << c.caso;
        for (const char* quem : {"bia", "ana"})
            EXPECT_EQ(
                teste::sqlBruto(db, "SELECT partidas FROM historicos_danificados WHERE jogador = ?",
                                quem),
                c.partidas)
                << c.caso << ": kept as it was";
    }
    BancoDoJogo banco(":memory:");
    ASSERT_TRUE(banco.importaHistorico("Ana", boa, ""));
    EXPECT_EQ(banco.historico("Ana").partidas.size(), 3u);
    banco.apagaHistorico("ANA");
    EXPECT_TRUE(banco.historico("Ana").partidas.empty());
}

// What the statistics window reads: a column per level, Clássico's fair deal apart, a dash
// where nothing was played, and the chart's curves told in words.
TEST(QuadroDeEstatisticas, TheFiguresAndTheirWords) {
    HistoricoDePartidas h;
    for (const auto& p : partidas("c+ c+ f- c- c+ cj+ f- f-")) h.registra(p);
    const auto quadro = quadroDeEstatisticas(h);
    const auto linha = [&](const char* nome) {
        for (const auto& l : quadro)
            if (l.nome == nome) return l.valores;
        ADD_FAILURE() << nome;
        return std::array<std::string, kColunasDoQuadro>{};
    };
    using V = std::array<std::string, kColunasDoQuadro>;
    EXPECT_EQ(linha("Partidas"), (V{"4", "1", "—", "3"}));
    EXPECT_EQ(linha("Aproveitamento"), (V{"75%", "100%", "—", "0%"}));
    EXPECT_EQ(linha("Sequência atual"), (V{"1 vitória", "1 vitória", "—", "3 derrotas"}));
    EXPECT_EQ(linha("Mãos perdidas"), (V{"7", "1", "—", "12"}));
    EXPECT_EQ(linha("Última partida"), (V{"05/01/2000", "06/01/2000", "—", "08/01/2000"}));
    EXPECT_EQ(resumoDasCurvas(h), "Nas últimas 8 partidas: Clássico, 75% (3 de 4); Clássico "
                                  "(justa), 100% (1 de 1); Forte, 0% (0 de 3).");
    EXPECT_EQ(resumoDasCurvas({}), "Nenhuma partida terminada ainda.");
    EXPECT_EQ(textoDoDia(diaDoHistorico(2026, 11, 25)), "25/11/2026");
    // The chart follows the last hundred matches only.
    for (int i = 0; i < 150; ++i) h.registra({100 + i, TipoNivel::Esperto, true, i >= 100, 4, 0});
    const auto curvas = curvasDeAproveitamento(h);
    ASSERT_EQ(curvas[2].size(), 100u);
    EXPECT_EQ(curvas[2].front().partida, 1);
    EXPECT_DOUBLE_EQ(curvas[2].back().fracao, 0.5);
    EXPECT_TRUE(curvas[0].empty()) << "Clássico's matches lie before the last hundred";
}

} // namespace
} // namespace corvina

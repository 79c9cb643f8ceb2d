// The hall of fame and the players' statistics on the real table: the best by balance, the
// wipe that asks about the statistics too, and each player's own history in its window.

#include <QAccessible>
#include <QComboBox>

#include "apoio/mesa_com_janelas.h"
#include "machine/autojogador.h"
#include "players/qt/frm_revisao.h"

namespace corvina {
namespace {

using teste::clica;
using teste::Mesa;
using teste::parte;
using teste::quandoAbrir;

TEST_F(Mesa, TheHallOfFameShowsTheBestAndCanBeWiped) {
    lista({"Ana", "Bia", "Caio"});
    for (const auto& [nome, saldo] : {std::pair{"Ana", "-1"}, {"Bia", "3"}, {"Caio", "1"}})
        settings.grava(chaveJogador(nome), "Saldo", saldo);
    abre([](QWidget* w) { clica(w, "Label9"); });
    jogo.modulo.nomeJogador = "Caio";
    jogo.modulo.tocarSom = true;
    jogo.modulo.tocarMusica = true;
    banco.registraPartida("Bia", {9000, TipoNivel::Forte, true, true, 4, 2}, {});
    // Sim to the hall, and then Sim to the statistics too.
    quandoAbrir("FrmSimNao", [](QWidget* w) {
        EXPECT_TRUE(parte<QLabel>(w, "Label1")->text().contains("Hall da Fama"));
        quandoAbrir("FrmSimNao", [](QWidget* w2) {
            EXPECT_TRUE(parte<QLabel>(w2, "Label1")->text().contains("estatísticas"));
            QTest::keyClick(w2, Qt::Key_Return);
        });
        QTest::keyClick(w, Qt::Key_Return);
    });
    quandoAbrir("FrmRecords", [](QWidget* w) {
        EXPECT_EQ(parte<QLabel>(w, "lbNome(1)")->text(), "Bia");
        EXPECT_EQ(parte<QLabel>(w, "lbNome(2)")->text(), "Caio");
        EXPECT_EQ(parte<QLabel>(w, "lbSaldo(3)")->text(), "-1");
        EXPECT_EQ(parte<QLabel>(w, "lbNome(4)")->text(), ".");
        EXPECT_TRUE(parte<QLabel>(w, "lbNome(2)")->styleSheet().contains("0,255,0"));
        clica(w, "Image4"); // the yes/no box answers Sim
        EXPECT_EQ(parte<QLabel>(w, "lbNome(1)")->text(), "Ana") << "all zero: the list's order";
        QTest::keyClick(w, Qt::Key_Space);
    });
    tecla(Qt::Key_F5);
    EXPECT_EQ(settings.le(chaveJogador("Bia"), "Saldo", "vazio"), "vazio");
    EXPECT_TRUE(banco.historico("Bia").partidas.empty());
    EXPECT_EQ(tocados(), (std::vector<std::string>{"click2.wav", "delete.wav"}));
    EXPECT_EQ(midi.comandos,
              (std::vector<std::string>{
                  "close musica", "open " + sons + "\\passport.mid type sequencer alias musica",
                  "play musica", "Close musica"}));
}

// From the hall of fame, the player's own history: a column per level, the chart's curves in
// words for a screen reader, and another player chosen in the window.
TEST_F(Mesa, TheStatisticsShowEachPlayersOwnHistory) {
    lista({"Ana", "Bia"});
    abre([](QWidget* w) { clica(w, "Label9"); });
    jogo.modulo.nomeJogador = "Ana";
    for (const bool venceu : {true, false, true})
        banco.registraPartida("Ana", {9000, TipoNivel::Classico, false, venceu, 4, 2}, {});
    banco.registraPartida("Ana", {9001, TipoNivel::Forte, true, false, 1, 4}, {});
    quandoAbrir("FrmRecords", [](QWidget* w) {
        clica(w, "Estatisticas");
        QTest::keyClick(w, Qt::Key_Escape);
    });
    quandoAbrir("FrmEstatisticas", [](QWidget* w) {
        const auto valor = [&](int linha, int coluna) {
            const QByteArray nome =
                "Valor" + QByteArray::number(linha) + "_" + QByteArray::number(coluna);
            return parte<QLabel>(w, nome.constData())->text();
        };
        EXPECT_EQ(parte<QComboBox>(w, "Jogador")->currentText(), "Ana");
        EXPECT_EQ(valor(0, 0), "3") << "three matches at Clássico";
        EXPECT_EQ(valor(3, 0), "67%");
        EXPECT_EQ(valor(0, 3), "1") << "one at Forte";
        EXPECT_EQ(valor(0, 2), "—") << "none at Esperto";
        auto* grafico = parte<QWidget>(w, "Grafico");
        QAccessibleInterface* leitura = QAccessible::queryAccessibleInterface(grafico);
        ASSERT_NE(leitura, nullptr);
        EXPECT_EQ(leitura->text(QAccessible::Description),
                  "Nas últimas 4 partidas: Clássico, 67% (2 de 3); Forte, 0% (0 de 1).");
        parte<QComboBox>(w, "Jogador")->setCurrentIndex(1);
        EXPECT_EQ(valor(0, 0), "—") << "Bia has played nothing";
        EXPECT_EQ(leitura->text(QAccessible::Description), "Nenhuma partida terminada ainda.");
        QTest::keyClick(w, Qt::Key_Escape);
    });
    tecla(Qt::Key_F5);
}

// After a hand, the score window opens its review: the keys step through the moves, each told
// to a screen reader as the window's description, and Forte's verdict comes in from its worker.
TEST_F(Mesa, TheScoreWindowOpensTheHandsReview) {
    lista({"Ana"});
    abre([](QWidget* w) { clica(w, "Label9"); });
    quandoAbrir("FrmPlacar", [](QWidget* w) {
        quandoAbrir("FrmRevisao", [](QWidget* r) {
            auto* revisao = static_cast<FrmRevisao*>(r);
            EXPECT_EQ(revisao->passo() + 1, revisao->passos()) << "it opens on the hand's end";
            EXPECT_TRUE(r->accessibleDescription().contains("venceu a mão") ||
                        r->accessibleDescription().contains("monte acabou"));
            QTest::keyClick(r, Qt::Key_Home);
            EXPECT_EQ(revisao->passo(), 0U);
            EXPECT_TRUE(r->accessibleDescription().startsWith("Distribuição. Suas cartas: "));
            QTest::keyClick(r, Qt::Key_Right);
            EXPECT_TRUE(r->accessibleDescription().startsWith("Lance 1 de "));
            for (int i = 0; i < 500 && !revisao->pronta(); ++i) QTest::qWait(10);
            EXPECT_TRUE(
                parte<QLabel>(r, "Resumo")->text().startsWith("Você descartou como o Forte em "));
            EXPECT_TRUE(r->accessibleDescription().contains("O Forte descartaria"));
            QTest::keyClick(r, Qt::Key_Escape);
        });
        clica(w, "Revisao");
        QTest::keyClick(w, Qt::Key_Return);
    });
    while (jogo.maos.empty()) jogaPeloJogador(jogo);
}

} // namespace
} // namespace corvina

// The real table window, offscreen, played with Qt's key and mouse events and the screen
// reader's actions.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDate>
#include <algorithm>

#include "apoio/mesa_na_tela.h"
#include "midia/audio/musica_fluidsynth.h"
#include "midia/audio/som.h"
#include "midia/ondas_qt.h"
#include "players/qt/frm_nivel.h"
#include "table/comandos.h"

namespace corvina {
namespace {

TEST(MesaNaTela, TheKeysWalkTheRowAndCarryTheCardInFocus) {
    MesaNaTela t;
    const Mesa& m = t.jogo.mesa;
    // Enter before drawing: the warning, as a card dropped on the pile, and nothing moves.
    t.tecla(Qt::Key_Right);
    t.tecla(Qt::Key_Return);
    EXPECT_EQ(m.qtdJog, 9);
    EXPECT_TRUE(t.vista.cena().textos.avisoVisivel);

    // Shift+Right carries the card one place along; Tab and the arrows walk the row.
    const Carta primeira = cartaNa(m.jogValor, m.jogNaipe, 1);
    t.tecla(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(cartaNa(m.jogValor, m.jogNaipe, 2), primeira);
    EXPECT_EQ(t.vista.cena().foco, 2);
    t.tecla(Qt::Key_Tab);
    EXPECT_EQ(t.vista.cena().foco, 3);
    for (int i = 0; i < 3; ++i) t.tecla(Qt::Key_Left);
    EXPECT_EQ(t.vista.cena().foco, 9) << "left of the first is the last";

    // With ten cards the card in focus stands raised, and stays so as the keys carry it.
    const int16 yMao = t.vista.cena().gesto.yMao;
    t.tecla(Qt::Key_B);
    t.tecla(Qt::Key_Home);
    t.tecla(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_LT(t.vista.cena()[peca::cj(2)].Top, yMao);
    EXPECT_EQ(t.vista.cena()[peca::cj(1)].Top, yMao);

    // A screen reader moves the card beside it over it: the focus and the raise stay on the
    // card they were on.
    const Carta emFoco = cartaNa(m.jogValor, m.jogNaipe, 2);
    QAccessible::queryAccessibleInterface(&t.janela)->child(0)->actionInterface()->doAction(
        "mover para a direita");
    EXPECT_EQ(t.vista.cena().foco, 1);
    EXPECT_LT(t.vista.cena()[peca::cj(1)].Top, yMao);
    EXPECT_EQ(t.vista.cena()[peca::cj(2)].Top, yMao);
    EXPECT_EQ(cartaNa(m.jogValor, m.jogNaipe, 1), emFoco);

    // The pointer over another card takes the choice over: one card raised, the one Enter throws.
    t.move(t.janela.retanguloDa(peca::cj(4)).center());
    for (int casa = 1; casa <= m.qtdJog; ++casa)
        EXPECT_EQ(t.vista.cena()[peca::cj(casa)].Top < yMao, casa == 4) << casa;
    EXPECT_EQ(t.vista.cena().foco, 4);
    const Carta apontada = cartaNa(m.jogValor, m.jogNaipe, 4);
    t.tecla(Qt::Key_Return);
    for (int i = 0; i < 500 && t.jogo.historico.descartes.empty(); ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 1);
    ASSERT_FALSE(t.jogo.historico.descartes.empty());
    EXPECT_EQ(t.jogo.historico.descartes.front(), apontada);
}

// A whole match by one way in alone, following the hint as its player takes it in: by the keys
// (D; then B, P, or the slot's digit and Enter), or by a screen reader's actions alone (the
// hint's action and its words, then "comprar", "pegar", or "descartar" on the card it names).
// The sounds are on, through the real sound layer, and no audio device is there to hear them.
// The match is recorded, and dated today in the player's history before its last score window.
TEST(MesaNaTela, AWholeMatchIsPlayedByTheKeysAloneAndByTheScreenReadersActionsAlone) {
    for (const bool leitor : {false, true}) {
        SCOPED_TRACE(leitor ? "leitor" : "teclas");
        OndasQt ondas;
        MusicaFluidSynth musica;
        Som som(pastaDosSons().toStdString(), ondas, musica);
        MesaNaTela t;
        t.vista.som(&som);
        t.jogo.modulo.tocarSom = t.jogo.modulo.tocarMusica = true;
        QAccessibleInterface* mesa = QAccessible::queryAccessibleInterface(&t.janela);
        const auto parte = [&](const std::string& nome) -> QAccessibleInterface* {
            for (int i = 0; i < mesa->childCount(); ++i)
                if (mesa->child(i)->text(QAccessible::Name).toStdString() == nome)
                    return mesa->child(i);
            return nullptr;
        };
        const auto age = [&](const std::string& nome, const char* acao) {
            if (QAccessibleInterface* p = parte(nome)) p->actionInterface()->doAction(acao);
        };
        const auto partidas = [&] {
            return std::count(t.abertas.begin(), t.abertas.end(), Janela::FrmNome) - 1;
        };
        std::size_t noPlacar = 0; // the history as the last score window found it
        t.vista.aoAbrirJanela = [&, abre = t.vista.aoAbrirJanela](Janela j) {
            if (j == Janela::FrmPlacar) noPlacar = t.banco.historico("Teste").partidas.size();
            abre(j);
        };
        for (int vez = 0; vez < 4000 && partidas() == 0; ++vez) {
            leitor ? age("Dica", "dica") : t.tecla(Qt::Key_D);
            const auto dica = t.janela.dicaAtual();
            ASSERT_TRUE(dica) << "every turn of the player has a hint";
            const std::string palavras =
                leitor ? parte("Dica")->text(QAccessible::Description).toStdString() : dica->texto;
            if (dica->tipo == Dica::Tipo::Baralho) {
                leitor ? age("Baralho", "comprar") : t.tecla(Qt::Key_B);
            } else if (dica->tipo == Dica::Tipo::Descarte) {
                leitor ? age("Descarte", "pegar") : t.tecla(Qt::Key_P);
            } else if (leitor) {
                // The card the hint's words name first (the next best comes after it).
                int primeira = -1;
                std::size_t onde = std::string::npos;
                for (int i = 0; i < t.jogo.mesa.qtdJog; ++i) {
                    const std::string nome = mesa->child(i)->text(QAccessible::Name).toStdString();
                    if (const std::size_t p = palavras.find(" " + nome); p < onde) {
                        onde = p;
                        primeira = i;
                    }
                }
                if (primeira >= 0) mesa->child(primeira)->actionInterface()->doAction("descartar");
            } else {
                t.tecla(static_cast<Qt::Key>(Qt::Key_0 + dica->casa % 10));
                t.tecla(Qt::Key_Return);
            }
            ASSERT_FALSE(t.janela.dicaAtual()) << palavras << ": the table did not move";
        }
        EXPECT_EQ(partidas(), 1) << "a match was played to its end";
        const std::string chave = chaveJogador("Teste");
        const long vitorias = numeroDoTexto(t.settings.le(chave, ajuste::kVitorias, "0"));
        EXPECT_EQ(vitorias + numeroDoTexto(t.settings.le(chave, ajuste::kDerrotas, "0")), 1);
        const HistoricoDePartidas h = t.banco.historico("Teste");
        ASSERT_EQ(h.partidas.size(), 1u);
        EXPECT_EQ(noPlacar, 1u) << "what the last score window offers sees the match";
        const QDate hoje = QDate::currentDate();
        EXPECT_EQ(h.partidas[0].dia, diaDoHistorico(hoje.year(), hoje.month(), hoje.day()));
        EXPECT_EQ(h.estatisticas({TipoNivel::Classico, false}).vitorias, vitorias);
        som.fechaMusica();
        musica.aguardaComandos();
    }
}

TEST(MesaNaTela, AScreenReaderReadsTheTableAndHearsItsChanges) {
    MesaNaTela t;
    // What the tools would hear (offscreen has no bridge to send it to): (name, kind).
    std::vector<std::pair<QString, QAccessible::Event>> ouvidos;
    t.janela.leitores().destino([&](QAccessibleEvent* e) {
        ouvidos.emplace_back(e->accessibleInterface()->text(QAccessible::Name), e->type());
    });
    t.janela.activateWindow();
    t.janela.setFocus();
    const Mesa& m = t.jogo.mesa;
    QAccessibleInterface* mesa = QAccessible::queryAccessibleInterface(&t.janela);
    ASSERT_NE(mesa, nullptr);
    EXPECT_EQ(mesa->text(QAccessible::Name), "Mesa do Corvina");
    ASSERT_EQ(mesa->childCount(), 9 + 7);

    const auto parte = [&](int i) { return mesa->child(i); };
    const auto nome = [&](int i) { return parte(i)->text(QAccessible::Name).toStdString(); };
    const auto descricao = [&](int i) {
        return parte(i)->text(QAccessible::Description).toStdString();
    };
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(nome(i), nomeDaCarta(cartaNa(m.jogValor, m.jogNaipe, i + 1)));
        EXPECT_EQ(descricao(i), "carta " + std::to_string(i + 1));
        EXPECT_EQ(parte(i)->role(), QAccessible::ListItem);
        const QRect naTela(t.janela.mapToGlobal(QPoint(0, 0)), t.janela.size());
        EXPECT_TRUE(naTela.contains(parte(i)->rect())) << i;
        EXPECT_EQ(mesa->indexOfChild(parte(i)), i);
    }
    EXPECT_EQ(nome(9), "Baralho");
    EXPECT_EQ(descricao(9), std::to_string(m.qtdBaralho) + " cartas");
    EXPECT_EQ(nome(10), "Descarte");
    EXPECT_EQ(nome(11), "Mão da CPU");
    EXPECT_EQ(descricao(11), "9 cartas") << "the machine's faces are not read while hidden";
    EXPECT_EQ(parte(12)->role(), QAccessible::StatusBar);
    EXPECT_EQ(nome(13), "Placar");
    EXPECT_EQ(descricao(13), "Teste 0, CPU 0");

    // The focus moves by keys, and the tools hear it on the card.
    t.tecla(Qt::Key_Right);
    EXPECT_TRUE(parte(0)->state().focused);
    EXPECT_EQ(mesa->focusChild(), parte(0));
    EXPECT_NE(std::find(ouvidos.begin(), ouvidos.end(),
                        std::pair(QString::fromStdString(nome(0)), QAccessible::Focus)),
              ouvidos.end());

    // Ctrl+F1 shows the machine's faces, and then they are read.
    t.tecla(Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(descricao(11).rfind("9 cartas: ", 0), 0u) << descricao(11);
    t.tecla(Qt::Key_F1, Qt::ControlModifier);

    // A draw: a tenth card appears, the stock says one less.
    const int16 monte = m.qtdBaralho;
    ouvidos.clear();
    t.tecla(Qt::Key_B);
    ASSERT_EQ(m.qtdJog, 10);
    ASSERT_EQ(mesa->childCount(), 10 + 7);
    EXPECT_EQ(nome(9), nomeDaCarta(cartaNa(m.jogValor, m.jogNaipe, 10)));
    EXPECT_EQ(descricao(10), std::to_string(monte - 1) + " cartas");
    EXPECT_NE(std::find(ouvidos.begin(), ouvidos.end(),
                        std::pair(QString::fromStdString(nome(9)), QAccessible::ObjectShow)),
              ouvidos.end());

    // After the machine's turn the line of messages says what it took and what it threw.
    t.tecla(Qt::Key_End);
    t.tecla(Qt::Key_Return);
    if (m.qtdJog == 9 && !t.jogo.historico.descartes.empty()) {
        const std::string linha = nome(12);
        EXPECT_EQ(linha.rfind("A CPU ", 0), 0u) << linha;
        EXPECT_NE(linha.find(" e descartou "), std::string::npos) << linha;
        EXPECT_NE(std::find_if(ouvidos.begin(), ouvidos.end(),
                               [&](const auto& o) {
                                   return o.first.toStdString() == linha &&
                                          o.second == QAccessible::NameChanged;
                               }),
                  ouvidos.end());
    }
}

TEST(MesaNaTela, TheCountAndTheToolbarsLightAnswerTheRealKeysAndMouse) {
    MesaNaTela t;
    const QRect contagem(21 + 114, 123 + 311, 20, 15); // the player's count, on the panel
    const QImage sem = t.janela.grab(contagem).toImage();
    t.tecla(Qt::Key_F9);
    EXPECT_TRUE(t.jogo.mesa.mostraContagem);
    EXPECT_NE(t.janela.grab(contagem).toImage(), sem) << "F9 shows the count";
    t.tecla(Qt::Key_F9);
    EXPECT_EQ(t.janela.grab(contagem).toImage(), sem) << "and hides it again";

    // The light follows the mouse from one toolbar word to the next, and goes out off it.
    const struct {
        QPoint ponto;
        int aceso;
    } passos[] = {{{80, 95}, 1}, {{210, 95}, 2}, {{340, 95}, 3}, {{400, 400}, 0}};
    QImage antes = t.janela.grab().toImage();
    for (const auto& p : passos) {
        t.move(p.ponto);
        EXPECT_EQ(t.vista.cena().gesto.botaoAtivo, p.aceso) << p.ponto.x();
        const QImage agora = t.janela.grab().toImage();
        EXPECT_NE(agora, antes) << "the light moved on the picture";
        antes = agora;
    }
}

// The level window from its key and from the table's own display of the level, the choice
// kept under the player's key; the hint, from its key and its link, never makes the move and
// leaves as soon as the table changes.
TEST(MesaNaTela, TheLevelWindowAndTheHint) {
    MesaNaTela t;
    t.tecla(Qt::Key_N);
    t.clica({600, 300}); // "Nível: Clássico", right of the pile
    EXPECT_EQ(std::count(t.abertas.begin(), t.abertas.end(), Janela::FrmNivel), 2);

    FrmNivel nivel(&t.janela, t.jogo.modulo, t.settings);
    for (const Qt::Key k : {Qt::Key_F, Qt::Key_Return}) {
        QKeyEvent e(QEvent::KeyPress, k, Qt::NoModifier);
        QApplication::sendEvent(&nivel, &e);
    }
    EXPECT_EQ(t.jogo.modulo.nivel, TipoNivel::Forte);
    EXPECT_EQ(t.settings.le(chaveJogador("Teste"), ajuste::kNivel, ""), "forte");

    ASSERT_EQ(t.jogo.mesa.qtdJog, 9);
    t.tecla(Qt::Key_D);
    ASSERT_TRUE(t.janela.dicaAtual());
    EXPECT_EQ(t.janela.dicaAtual()->tipo, Dica::Tipo::Baralho) << "the pile is empty";
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9) << "a hint never moves";
    t.clica(t.janela.retanguloDa(peca::kCostas2).center());
    ASSERT_EQ(t.jogo.mesa.qtdJog, 10);
    EXPECT_FALSE(t.janela.dicaAtual()) << "the table changed: the hint is gone";

    t.clica({640, 341}); // "Dica (D)"
    ASSERT_TRUE(t.janela.dicaAtual());
    const Dica d = *t.janela.dicaAtual();
    ASSERT_EQ(d.tipo, Dica::Tipo::Carta);
    EXPECT_EQ(d.texto.rfind("Dica: descarte ", 0), 0u) << d.texto;
    EXPECT_EQ(t.jogo.mesa.qtdJog, 10);
}

TEST(MesaNaTela, ANewMatchWithTenCardsInHandDealsNineAgain) {
    MesaNaTela t;
    t.jogo.modulo.pontosMac = 2;
    t.clica(t.janela.retanguloDa(peca::kCostas2).center());
    ASSERT_EQ(t.jogo.mesa.qtdJog, 10);
    // F3 with a card held by the mouse: the card goes back first, and the new hand has no drag.
    const QPoint sobre = t.janela.retanguloDa(peca::cj(1)).center();
    t.move(sobre);
    t.envia(QEvent::MouseButtonPress, sobre, Qt::LeftButton, Qt::LeftButton);
    t.move(sobre + QPoint(40, 0), Qt::LeftButton);
    ASSERT_EQ(t.vista.cena().gesto.arrastando, 1);
    t.tecla(Qt::Key_F3);
    EXPECT_EQ(t.vista.cena().gesto.arrastando, 0);
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9);
    EXPECT_EQ(t.jogo.modulo.pontosMac, 0);
    EXPECT_FALSE(t.vista.cena()[peca::cj(10)].Visible) << "no tenth card left on the table";
    EXPECT_TRUE(t.vista.cena()[peca::kCostas2].Enabled) << "the new hand waits for a draw";
    t.descarta(1);
    EXPECT_EQ(t.jogo.mesa.qtdJog, 9) << "and a discard is refused until then";
}

TEST(MesaNaTela, ClosingWritesTheSettingsAndTheLastPlayer) {
    MesaNaTela t;
    t.jogo.modulo.velocidade = 11;
    t.tecla(Qt::Key_F8);
    t.janela.close();
    EXPECT_EQ(t.settings.le(chaveBase(), "TipoCarta", ""), "5") << "the back changed by F8";
    EXPECT_EQ(t.settings.le(chaveBase(), "Velocidade", ""), "11");
    EXPECT_EQ(t.settings.le(chaveBase(), "UltimoJogador", ""), "Teste");
    EXPECT_EQ(t.settings.le(chaveBase(), "AnimarCartas", ""), "True");
}

} // namespace
} // namespace corvina

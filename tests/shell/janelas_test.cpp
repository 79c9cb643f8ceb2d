// The small windows on the real table, offscreen: each opened from its key or button, acted on
// with synthetic mouse and key events, and the store and the game checked afterwards.

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <functional>

#include "apoio/mesa_com_janelas.h"
#include "core/armazem_memoria.h"
#include "core/pecas.h"
#include "players/banco_do_jogo.h"
#include "players/qt/frm_estatisticas.h"
#include "players/qt/frm_nivel.h"
#include "players/qt/frm_nome.h"
#include "players/qt/frm_novo_jogador.h"
#include "players/qt/frm_opc.h"
#include "players/qt/frm_placar.h"
#include "players/qt/frm_records.h"
#include "players/qt/frm_sim_nao.h"
#include "players/qt/frm_tipos.h"
#include "players/qt/janela_de_figura.h"
#include "shell/corvinahlp/janela_da_ajuda.h"
#include "shell/janelas_qt.h"
#include "update/qt/frm_sobre.h"
#include "update/qt/frm_up.h"

namespace corvina {
namespace {

using teste::clica;
using teste::digita;
using teste::Mesa;
using teste::parte;
using teste::quandoAbrir;

TEST_F(Mesa, AFirstPlayerIsRegisteredAndPlaysInAssistedMode) {
    quandoAbrir("FrmNovoJogador", [](QWidget* w) {
        auto* text1 = parte<QLineEdit>(w, "Text1");
        EXPECT_EQ(text1->selectedText(), "Jogador") << "typing replaces the proposed name";
        digita(text1, "Zé d'Água");
        QTest::keyClick(text1, Qt::Key_Return);
    });
    abre([](QWidget* w) {
        EXPECT_FALSE(parte(w, "Label15")->isVisible()) << "no cancel at the start";
        EXPECT_EQ(parte<QComboBox>(w, "Combo1")->currentText(), "Zé d'Água");
        clica(w, "Label12");
        EXPECT_TRUE(parte<QCheckBox>(w, "Check4")->isChecked());
        clica(w, "Label9");
    });
    EXPECT_EQ(jogo.modulo.nomeJogador, "Zé d'Água");
    EXPECT_EQ(jogo.modulo.assistido, 1);
    EXPECT_TRUE(vista.cena().textos.statusVisivel) << "assisted mode reaches the table";
    EXPECT_EQ(ajuste("Jogador1"), "Zé d'Água");
    EXPECT_EQ(settings.le(chaveJogador("ZÉ D'ÁGUA"), "Assistido", ""), "1");
}

TEST_F(Mesa, OptionsAreStoredOnOkAndLeftAloneOnCancel) {
    lista({"Ana"});
    abre([](QWidget* w) { clica(w, "Label9"); });
    quandoAbrir("FrmOpc", [](QWidget* w) {
        EXPECT_EQ(parte<QSlider>(w, "HScroll1")->value(), 6);
        parte<QSlider>(w, "HScroll1")->setValue(14);
        clica(w, "Label5");
    });
    tecla(Qt::Key_F4);
    EXPECT_EQ(jogo.modulo.velocidade, 6);
    EXPECT_EQ(ajuste("Velocidade"), "");
    EXPECT_EQ(janela.size(), QSize(800, 600));

    quandoAbrir("FrmOpc", [](QWidget* w) {
        parte<QSlider>(w, "HScroll1")->setValue(11);
        clica(w, "Check1");
        clica(w, "Check2");
        // The test's screen is 800 pixels wide: no larger table would lie on it.
        EXPECT_EQ(parte<QComboBox>(w, "TamanhoDaMesa")->count(), 1);
        EXPECT_EQ(parte<QComboBox>(w, "TamanhoDaMesa")->currentText(), "100%");
        clica(w, "Label4");
    });
    tecla(Qt::Key_F4);
    EXPECT_EQ(ajuste("TamanhoDaMesa"), "100");
    EXPECT_EQ(jogo.modulo.velocidade, 11);
    EXPECT_FALSE(jogo.modulo.tocarSom);
    EXPECT_TRUE(jogo.modulo.tocarMusica);
    EXPECT_EQ(ajuste("Velocidade"), "11");
    EXPECT_EQ(ajuste("TocarSom"), "False");
    EXPECT_EQ(ajuste("TocarMusica"), "True");
    EXPECT_EQ(ajuste("AnimarCartas"), "True");
}

TEST_F(Mesa, ABackIsChosenWithAClickAndEscapeChangesNothing) {
    lista({"Ana"});
    abre([](QWidget* w) { clica(w, "Label9"); });
    jogo.modulo.tocarSom = true;
    quandoAbrir("frmtipos", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    tecla(Qt::Key_F2);
    EXPECT_EQ(jogo.modulo.tipoCarta, 4);
    quandoAbrir("frmtipos", [](QWidget* w) { clica(w, "tipo7"); });
    tecla(Qt::Key_F2);
    EXPECT_EQ(jogo.modulo.tipoCarta, 7);
    EXPECT_EQ(ajuste("TipoCarta"), "") << "stored only when the table closes";
    EXPECT_EQ(tocados(), std::vector<std::string>(3, "click2.wav")) << "two keys, one back chosen";
}

// Each toolbar word and the picture of the title open their window (the click's sound and
// the keys are the commands' own, tested with them).
TEST_F(Mesa, EveryToolbarWordAndTheTitlesPictureOpenTheirWindow) {
    lista({"Ana"});
    abre([](QWidget* w) { clica(w, "Label9"); });
    const struct {
        QPoint ponto;
        const char* janela;
        const char* fecha;                          // the part that closes it; Escape when none
    } botoes[] = {{{80, 95}, "FrmNome", "Label15"}, // cancelled: offered from the toolbar only
                  {{210, 95}, "FrmOpc", "Label5"},
                  {{340, 95}, "FrmRecords", "Image3"},
                  {{470, 95}, "frmtipos", ""},
                  {{690, 40}, "FrmSobre", "Command1"}};
    for (const auto& b : botoes) {
        bool abriu = false;
        quandoAbrir(b.janela, [&](QWidget* w) {
            abriu = true;
            if (*b.fecha)
                clica(w, b.fecha);
            else
                QTest::keyClick(w, Qt::Key_Escape);
        });
        const Carta primeira = cartaNa(jogo.mesa.jogValor, jogo.mesa.jogNaipe, 1);
        QTest::mouseClick(&janela, Qt::LeftButton, {}, b.ponto);
        EXPECT_TRUE(abriu) << b.janela;
        EXPECT_EQ(cartaNa(jogo.mesa.jogValor, jogo.mesa.jogNaipe, 1), primeira)
            << b.janela << ": closed, the hand goes on";
    }
}

// Each text of a window, at the default font size, inside its own place and off the window's
// wooden border; each part Tab reaches inside the window, with a name for a screen reader.
void confereTextos(QWidget* janela) {
    constexpr int kBorda = 9; // the wood, its gold line and some air
    const QRect feltro = janela->rect().adjusted(kBorda, kBorda, -kBorda, -kBorda);
    for (const QLabel* l : janela->findChildren<QLabel*>()) {
        if (l->text().isEmpty() || l->wordWrap() || l->objectName().isEmpty()) continue;
        const QFontMetrics fm(l->font());
        const QRect texto = QStyle::alignedRect(Qt::LeftToRight, l->alignment(),
                                                QSize(fm.horizontalAdvance(l->text()), fm.height()),
                                                l->contentsRect());
        EXPECT_TRUE(l->contentsRect().contains(texto))
            << janela->objectName().toStdString() << "." << l->objectName().toStdString() << " \""
            << l->text().toStdString() << "\" needs " << texto.width() << " px, has "
            << l->contentsRect().width();
        const QRect naJanela(l->mapTo(janela, texto.topLeft()), texto.size());
        EXPECT_TRUE(feltro.contains(naJanela))
            << janela->objectName().toStdString() << "." << l->objectName().toStdString()
            << " reaches the border";
    }
    for (const QCheckBox* c : janela->findChildren<QCheckBox*>()) {
        if (c->text().isEmpty() || c->geometry().top() >= janela->height()) continue;
        EXPECT_LE(c->sizeHint().width(), c->width()) << c->objectName().toStdString();
    }
    // Whatever Tab reaches lies inside the window and tells a screen reader what it is.
    for (QWidget* parte : janela->findChildren<QWidget*>()) {
        if (!(parte->focusPolicy() & Qt::TabFocus) || parte->isHidden() ||
            parte->window() != janela || qobject_cast<QAbstractScrollArea*>(parte->parent()))
            continue; // a popup's list, or the inside of a view that is named itself
        EXPECT_TRUE(janela->rect().contains(QRect(parte->mapTo(janela, QPoint()), parte->size())))
            << janela->objectName().toStdString() << "." << parte->objectName().toStdString();
        EXPECT_FALSE(
            QAccessible::queryAccessibleInterface(parte)->text(QAccessible::Name).isEmpty())
            << janela->objectName().toStdString() << "." << parte->objectName().toStdString();
    }
}

TEST(Textos, EveryTextFitsItsPlace) {
    Module1 m;
    m.nomeJogador = "Maria Helena"; // twelve letters, as long as a name can be
    ArmazemMemoria a;
    BancoDoJogo banco(":memory:");
    a.grava(chaveBase(), ajuste::jogador(1), m.nomeJogador);
    FrmNome nome(nullptr, m, a, banco, nullptr, true);
    FrmNovoJogador novo(nullptr, m, a, [](const std::string&) {});
    FrmOpc opc(nullptr, m, a);
    FrmPlacar placar(nullptr, m, {"Parabéns, você foi o vencedor", 4, 3, false});
    FrmRecords records(nullptr, m, a, banco, nullptr);
    FrmSobre sobre(nullptr, versaoDoPrograma());
    FrmUp up(nullptr, "https://127.0.0.1:1/x.deb", "3.8.0", "");
    FrmNivel nivel(nullptr, m, a);
    banco.registraPartida(m.nomeJogador, {9000, TipoNivel::Classico, true, true, 4, 3}, {});
    FrmEstatisticas estatisticas(nullptr, m, a, banco);
    FrmTipos tipos(nullptr, m, nullptr);
    for (QWidget* w : std::initializer_list<QWidget*>{&nome, &novo, &opc, &placar, &records, &sobre,
                                                      &up, &nivel, &estatisticas, &tipos})
        confereTextos(w);
    quandoAbrir("FrmSimNao", [](QWidget* w) {
        confereTextos(w);
        QTest::keyClick(w, Qt::Key_Escape);
    });
    SimNao(nullptr, "Deseja realmente zerar o Hall da Fama?", "Corvina");
}

// Escape does what each window's Cancelar does, or its OK where that is all it offers.
TEST(Escape, IsEachWindowsCancelOrItsOnlyAnswer) {
    Module1 m;
    ArmazemMemoria a;
    BancoDoJogo banco(":memory:");
    a.grava(chaveBase(), ajuste::jogador(1), "Ana");
    const struct {
        const char* janela;
        std::function<int()> abre;
        int resultado;
    } casos[] = {
        {"FrmOpc", [&] { return FrmOpc(nullptr, m, a).exec(); }, QDialog::Rejected},
        {"FrmNovoJogador",
         [&] { return FrmNovoJogador(nullptr, m, a, [](const std::string&) {}).exec(); },
         QDialog::Rejected},
        {"FrmNome", [&] { return FrmNome(nullptr, m, a, banco, nullptr, true).exec(); },
         QDialog::Rejected},
        {"FrmPlacar",
         [&] {
             return FrmPlacar(nullptr, m, {"Vencedor", 1, 0, false}).exec();
         },
         QDialog::Accepted},
    };
    for (const auto& c : casos) {
        quandoAbrir(c.janela, [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
        EXPECT_EQ(c.abre(), c.resultado) << c.janela;
    }
    EXPECT_EQ(a.le(chaveBase(), ajuste::kVelocidade, "?"), "?") << "nothing stored on Cancelar";
    EXPECT_EQ(a.le(chaveBase(), ajuste::jogador(2), "?"), "?") << "and no player added";
}

TEST(Ajuda, EscapeOrCtrlQClosesIt) {
    for (const QKeyCombination tecla :
         {QKeyCombination(Qt::Key_Escape), QKeyCombination(Qt::ControlModifier, Qt::Key_Q)}) {
        JanelaDaAjuda ajuda;
        ajuda.show();
        QApplication::setActiveWindow(&ajuda);
        QTest::keyClick(&ajuda, tecla.key(), tecla.keyboardModifiers());
        EXPECT_FALSE(ajuda.isVisible()) << QKeySequence(tecla).toString().toStdString();
    }
}

// Enter on the box answers Sim, Escape Não; on Não, reached by Tab, Enter and Space answer Não,
// as a click does, and as a screen reader's press of the button it sees.
TEST(FrmSimNao, EachWayToAnswer) {
    const auto tabAteNao = [](QWidget* w) {
        auto* nao = parte<Comando>(w, "Label3");
        for (int i = 0; i < 3 && !nao->focoDoTeclado(); ++i)
            QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, Qt::Key_Tab);
        EXPECT_TRUE(nao->focoDoTeclado());
        return nao;
    };
    const struct {
        const char* como;
        std::function<void(QWidget*)> responde;
        bool sim;
    } casos[] = {
        {"Enter", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Return); }, true},
        {"keypad Enter", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Enter); }, true},
        {"Escape", [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); }, false},
        {"click", [](QWidget* w) { clica(w, "Label3"); }, false},
        {"Tab, Enter", [&](QWidget* w) { QTest::keyClick(tabAteNao(w), Qt::Key_Return); }, false},
        {"Tab, Space", [&](QWidget* w) { QTest::keyClick(tabAteNao(w), Qt::Key_Space); }, false},
        {"screen reader",
         [](QWidget* w) {
             QAccessibleInterface* nao =
                 QAccessible::queryAccessibleInterface(parte<Comando>(w, "Label3"));
             if (!nao || !nao->actionInterface() || nao->role() != QAccessible::Button ||
                 nao->text(QAccessible::Name) != "Não") { // a failure must still close the box
                 ADD_FAILURE() << "Não is no accessible button";
                 return clica(w, "Label3");
             }
             nao->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
         },
         false},
    };
    for (const auto& c : casos) {
        quandoAbrir("FrmSimNao", [&](QWidget* w) {
            EXPECT_EQ(parte<QLabel>(w, "Label1")->text(), "Pergunta\nDeseja?")
                << "the question's break shows as a break";
            c.responde(w);
        });
        EXPECT_EQ(SimNao(nullptr, "Pergunta\rDeseja?", "Título"), c.sim) << c.como;
    }
}

// In the level window too, Space presses the command Tab reached; it never ticks the box.
TEST(FrmNivel, SpaceOnACommandReachedByTabPressesIt) {
    for (const char* alvo : {"OK", "Cancelar"}) {
        Module1 m;
        ArmazemMemoria a;
        FrmNivel nivel(nullptr, m, a);
        nivel.show();
        QApplication::setActiveWindow(&nivel);
        auto* c = parte<Comando>(&nivel, alvo);
        for (int i = 0; i < 12 && !c->focoDoTeclado(); ++i)
            QTest::keyClick(nivel.focusWidget() ? nivel.focusWidget() : &nivel, Qt::Key_Tab);
        ASSERT_TRUE(c->focoDoTeclado()) << alvo;
        const bool justa = parte<QCheckBox>(&nivel, "Justa")->isChecked();
        QTest::keyClick(c, Qt::Key_Space);
        EXPECT_EQ(nivel.result(),
                  std::string(alvo) == "OK" ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_EQ(parte<QCheckBox>(&nivel, "Justa")->isChecked(), justa) << alvo;
    }
}

TEST(FrmPlacar, TheNamesAndPointsBlinkOnlyAtTheEndOfAMatch) {
    Module1 m;
    m.nomeJogador = "Ana";
    for (const bool pisca : {false, true}) {
        FrmPlacar placar(nullptr, m, {"Parabéns, você foi o vencedor", 4, 2, pisca});
        placar.show();
        QLabel* label5 = placar.findChild<QLabel*>("Label5");
        ASSERT_NE(label5, nullptr);
        EXPECT_EQ(label5->text(), "4");
        QTest::qWait(FrmPlacar::kPiscaMs + FrmPlacar::kPiscaMs / 2); // halfway between two ticks
        EXPECT_TRUE(label5->isVisible()) << "the first tick shows them";
        QTest::qWait(FrmPlacar::kPiscaMs);
        EXPECT_EQ(label5->isVisible(), !pisca) << "the second hides them";
        EXPECT_TRUE(placar.findChild<QLabel*>("Label1")->isVisible());
        QTest::mouseClick(placar.findChild<QWidget*>("Label8"), Qt::LeftButton);
        EXPECT_FALSE(placar.isVisible());
    }
    // The statistics are offered at the end of a match, blinking or not, and only then.
    for (const auto& [jog, mac, oferece] : {std::tuple{4, 2, true}, {1, 4, true}, {3, 2, false}}) {
        FrmPlacar placar(nullptr, m, {"", static_cast<int16>(jog), static_cast<int16>(mac), false},
                         [](QWidget*) {});
        EXPECT_EQ(placar.findChild<QWidget*>("Estatisticas") != nullptr, oferece)
            << jog << " x " << mac;
    }
}

} // namespace
} // namespace corvina

#pragma once
// The real table window, offscreen, for the tests that play it: dealt for the last player,
// every other window closed at once, and Qt's mouse and key events sent straight to it.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <vector>

#include "core/ajustes.h"
#include "core/pecas.h"
#include "machine/nivel_da_mesa.h"
#include "midia/imagens.h"
#include "players/qt/settings.h"
#include "shell/janela_mesa.h"

namespace corvina {

// What every test of the real table stands on: a store and a database of its own, the pictures,
// and the view on the screen in its test mode, past the first run's options.
struct BaseDaMesa {
    QTemporaryDir pasta;
    Settings settings{pasta.filePath("Corvina.ini")};
    Imagens imagens{pastaDeImagens()};
    BancoDoJogo banco{":memory:"};
    VistaQt vista{settings, banco};
    BaseDaMesa() {
        vista.modoDeTeste(true);
        settings.grava(chaveBase(), ajuste::kPrimeiraVez, "1");
    }
};

struct MesaNaTela : BaseDaMesa {
    AcasoSemente acaso;
    NivelDaMesa nivel;
    Jogo jogo;
    JanelaMesa janela{jogo, vista, imagens};
    std::vector<Janela> abertas;

    // The deal from `semente`; the machine's seat played by `outro` when given (it must
    // outlive the table), else by the level chosen; each step of a flight `pausaDoVoo` ms.
    explicit MesaNaTela(std::uint64_t semente = 7, Nivel* outro = nullptr, int pausaDoVoo = 0)
        : acaso(semente), jogo(vista, acaso, outro ? *outro : static_cast<Nivel&>(nivel)) {
        nivel.segue(jogo.modulo);
        vista.liga(jogo);
        if (pausaDoVoo > 0) vista.pausasDeTeste(pausaDoVoo);
        // The choice of player as the last one; the other windows close at once.
        vista.aoAbrirJanela = [this](Janela j) {
            abertas.push_back(j);
            if (j == Janela::FrmNome)
                jogo.modulo.nomeJogador = settings.le(chaveBase(), ajuste::kUltimoJogador, "");
        };
        settings.grava(chaveBase(), ajuste::kUltimoJogador, "Teste");
        Form_Load(jogo);
        janela.show();
        // The first activation deals, once the window is on the screen.
        for (int i = 0; i < 200 && jogo.mesa.qtdJog == 0; ++i)
            QApplication::processEvents(QEventLoop::AllEvents, 1);
    }

    void envia(QEvent::Type tipo, QPoint ponto, Qt::MouseButton botao, Qt::MouseButtons botoes) {
        QMouseEvent e(tipo, QPointF(ponto), janela.mapToGlobal(QPointF(ponto)), botao, botoes,
                      Qt::NoModifier);
        QApplication::sendEvent(&janela, &e);
    }
    void move(QPoint p, Qt::MouseButtons botoes = Qt::NoButton) {
        envia(QEvent::MouseMove, p, Qt::NoButton, botoes);
    }
    void clica(QPoint p) {
        move(p);
        envia(QEvent::MouseButtonPress, p, Qt::LeftButton, Qt::LeftButton);
        envia(QEvent::MouseButtonRelease, p, Qt::LeftButton, Qt::NoButton);
    }
    void tecla(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QKeyEvent e(QEvent::KeyPress, k, m);
        QApplication::sendEvent(&janela, &e);
    }
    // Over the card, press, up above the row in steps, let go: the discard.
    void descarta(int casa) {
        const QPoint sobre = janela.retanguloDa(peca::cj(casa)).center();
        move(sobre);
        envia(QEvent::MouseButtonPress, sobre, Qt::LeftButton, Qt::LeftButton);
        QPoint p = sobre;
        for (int passo = 0; passo < 6; ++passo) {
            p += QPoint(-10, -25);
            move(p, Qt::LeftButton);
        }
        envia(QEvent::MouseButtonRelease, p, Qt::LeftButton, Qt::NoButton);
    }
};

} // namespace corvina

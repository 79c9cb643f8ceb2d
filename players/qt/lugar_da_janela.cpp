#include "players/qt/lugar_da_janela.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace corvina {

void CentraJanela(QWidget& janela) {
    const QScreen* tela = janela.screen() ? janela.screen() : QGuiApplication::primaryScreen();
    if (!tela) return;
    janela.move(tela->availableGeometry().center() -
                QPoint(janela.width() / 2, janela.height() / 2));
}

void centraNoDono(QWidget& janela) {
    const QWidget* dono = janela.parentWidget();
    if (!dono) return CentraJanela(janela);
    janela.move(dono->window()->frameGeometry().center() -
                QPoint(janela.width() / 2, janela.height() / 2));
}

void moveJanela(QWidget& janela) {
    if (QWindow* w = janela.windowHandle()) w->startSystemMove();
}

} // namespace corvina

#include "players/qt/lugar_da_janela.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

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

void ficaNaTela(QWidget& janela) {
    const QScreen* tela = janela.screen();
    if (!tela || !janela.isVisible()) return;
    const QRect livre = tela->availableGeometry();
    QRect onde = janela.frameGeometry();
    onde.moveLeft(std::clamp(onde.left(), livre.left(),
                             std::max(livre.left(), livre.right() - onde.width() + 1)));
    onde.moveTop(std::clamp(onde.top(), livre.top(),
                            std::max(livre.top(), livre.bottom() - onde.height() + 1)));
    if (onde.topLeft() != janela.frameGeometry().topLeft()) janela.move(onde.topLeft());
}

} // namespace corvina

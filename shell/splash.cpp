#include "shell/splash.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWindow>

namespace corvina {

Splash::Splash(const QPixmap& figura, const QString& versao) : figura_(figura), versao_(versao) {
    setWindowTitle("Corvina");
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFixedSize(500, 160);
}

void Splash::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawPixmap(0, 0, figura_);
    QFont f("DejaVu Sans");
    f.setPixelSize(12);
    p.setFont(f);
    p.setPen(QColor(246, 228, 164));
    p.drawText(QRect(434, 18, 39, 17), Qt::AlignRight | Qt::AlignVCenter, versao_); // Label4
}

void CentraJanela(QWidget& janela) {
    const QScreen* tela = janela.screen() ? janela.screen() : QGuiApplication::primaryScreen();
    if (!tela) return;
    const QRect area = tela->availableGeometry();
    janela.move(area.center() - QPoint(janela.width() / 2, janela.height() / 2));
}

} // namespace corvina

namespace corvina {

void moveJanela(QWidget& janela) {
    if (QWindow* w = janela.windowHandle()) w->startSystemMove();
}

} // namespace corvina

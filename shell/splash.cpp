#include "shell/splash.h"

#include <QPainter>

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

} // namespace corvina

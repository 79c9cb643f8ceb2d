#include "update/qt/progress_bar_xp.h"

#include <QPainter>

#include "update/barra_de_progresso.h"

namespace corvina {

namespace {
inline constexpr int kBordaDoDesenho = 4; // the blocks start one past the inner edge
inline constexpr int kLinhasDoGradiente = 6;
const QColor kContorno(104, 104, 104), kSombra(190, 190, 190), kLuz(239, 239, 239);
} // namespace

ProgressBarXP::ProgressBarXP(QWidget* pai)
    : QWidget(pai), cor_(palette().color(QPalette::Highlight)) {}

void ProgressBarXP::setValue(long valor) {
    valor_ = valor;
    percentual_ = percentualDaBarra(valor_, max_, min_);
    repaint();
}

void ProgressBarXP::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const int w = width(), h = height();
    p.fillRect(rect(), Qt::white);
    const int x = fimDoPreenchimento(w, percentual_);
    const Cor t = tinta({cor_.red(), cor_.green(), cor_.blue()});
    const QColor clara(t.r, t.g, t.b);
    const auto mistura = [](QColor a, QColor b, double f) {
        return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * f,
                                a.greenF() + (b.greenF() - a.greenF()) * f,
                                a.blueF() + (b.blueF() - a.blueF()) * f);
    };
    const int largura = x - kBordaDoDesenho;
    if (largura > 0) {
        // Light to full colour in the six rows from row 3, full from 8 to h - 8, and back to
        // light in the six rows from h - 10, in this order: on a low bar the three overlap,
        // and the last one drawn shows.
        const auto gradiente = [&](int linha, QColor de, QColor ate) {
            for (int i = 0; i < kLinhasDoGradiente; ++i)
                p.fillRect(kBordaDoDesenho, linha + i, largura, 1,
                           mistura(de, ate, static_cast<double>(i) / (kLinhasDoGradiente - 1)));
        };
        gradiente(3, clara, cor_);
        if (h - 16 > 0) p.fillRect(kBordaDoDesenho, 8, largura, h - 16, cor_);
        gradiente(h - 10, cor_, clara);
        // The gaps between the blocks.
        for (int vao = kBordaInterna + kBloco + 1; vao < x; vao += kPasso)
            p.fillRect(vao, 0, kVao, h, Qt::white);
    }
    // The frame, its inner lines, and corners set pixel by pixel so that it looks rounded.
    p.setPen(kContorno);
    p.drawRect(0, 0, w - 1, h - 1);
    p.setPen(kSombra);
    p.drawLine(1, 1, w - 2, 1);
    p.drawLine(1, 1, 1, h - 2);
    p.setPen(kLuz);
    p.drawLine(2, 2, w - 3, 2);
    p.drawLine(2, 2, 2, h - 3);
    p.drawLine(1, h - 2, w - 2, h - 2);
    p.drawLine(w - 2, 1, w - 2, h - 2);
    const QColor cantos[] = {Qt::white, QColor(200, 200, 200), QColor(150, 150, 150)};
    for (const QPoint c :
         {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1), QPoint(w - 1, h - 1)}) {
        const int dx = c.x() == 0 ? 1 : -1, dy = c.y() == 0 ? 1 : -1;
        p.setPen(cantos[0]);
        p.drawPoint(c);
        p.setPen(cantos[1]);
        p.drawPoint(c + QPoint(dx, 0));
        p.drawPoint(c + QPoint(0, dy));
        p.setPen(cantos[2]);
        p.drawPoint(c + QPoint(dx, dy));
    }
}

} // namespace corvina

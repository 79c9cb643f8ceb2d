#include "shell/moldura_da_mesa.h"

#include <cmath>

#include "table/tamanho_da_mesa.h"

namespace corvina {

QSize MolduraDaMesa::janela() const {
    return {static_cast<int>(std::lround(kLarguraDaMesa * fator())),
            static_cast<int>(std::lround(kAlturaDaMesa * fator()))};
}

double MolduraDaMesa::fatorEm(QSize area) const {
    return preenche_ ? fatorQuePreenche(area.width(), area.height()) : fator();
}

QTransform MolduraDaMesa::paraJanela(QSize area) const {
    const double f = fatorEm(area);
    // Whole pixels, so that the cards' edges stay sharp.
    const int x = std::max(0, static_cast<int>((area.width() - kLarguraDaMesa * f) / 2));
    const int y = std::max(0, static_cast<int>((area.height() - kAlturaDaMesa * f) / 2));
    return QTransform::fromTranslate(x, y).scale(f, f);
}

QRect MolduraDaMesa::paraJanela(const QRect& r, QSize area) const {
    return paraJanela(area).mapRect(QRectF(r)).toAlignedRect();
}

QPointF MolduraDaMesa::paraMesa(QPointF p, QSize area) const {
    return paraJanela(area).inverted().map(p);
}

} // namespace corvina

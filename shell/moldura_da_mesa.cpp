#include "shell/moldura_da_mesa.h"

#include <cmath>

#include "table/tamanho_da_mesa.h"

namespace corvina {

QSize MolduraDaMesa::janela() const {
    return {static_cast<int>(std::lround(kLarguraDaMesa * fator())),
            static_cast<int>(std::lround(kAlturaDaMesa * fator()))};
}

QTransform MolduraDaMesa::paraJanela(QSize area) const {
    const QSize mesa = janela();
    // Whole pixels, so that the cards' edges stay sharp.
    const int x = std::max(0, (area.width() - mesa.width()) / 2);
    const int y = std::max(0, (area.height() - mesa.height()) / 2);
    return QTransform::fromTranslate(x, y).scale(fator(), fator());
}

QRect MolduraDaMesa::paraJanela(const QRect& r, QSize area) const {
    return paraJanela(area).mapRect(QRectF(r)).toAlignedRect();
}

QPointF MolduraDaMesa::paraMesa(QPointF p, QSize area) const {
    return paraJanela(area).inverted().map(p);
}

} // namespace corvina

#pragma once
// Where the table lies in its window: drawn at its size (100% to 300%), alone in a window of its
// own size or centred on the felt colour in a full screen. Every picture, click and place for
// the screen readers passes through here, between the window's pixels and the table's.

#include <QPointF>
#include <QRect>
#include <QSize>
#include <QTransform>

namespace corvina {

class MolduraDaMesa {
  public:
    void tamanho(int porcento) { porcento_ = porcento; }
    int tamanho() const { return porcento_; }
    double fator() const { return porcento_ / 100.0; }
    // The window's size out of full screen.
    QSize janela() const;
    // From the table's pixels to those of a window of size `area`.
    QTransform paraJanela(QSize area) const;
    QRect paraJanela(const QRect& r, QSize area) const;
    QPointF paraMesa(QPointF p, QSize area) const;

  private:
    int porcento_ = 100;
};

} // namespace corvina

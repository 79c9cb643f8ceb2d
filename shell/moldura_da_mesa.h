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
    // Full screen: the table fills the area, at whatever scale reaches its height or width.
    void preenche(bool sim) { preenche_ = sim; }
    // The scale the table is drawn at in a window of size `area`.
    double fatorEm(QSize area) const;
    // The window's size out of full screen.
    QSize janela() const;
    // From the table's pixels to those of a window of size `area`.
    QTransform paraJanela(QSize area) const;
    QRect paraJanela(const QRect& r, QSize area) const;
    QPointF paraMesa(QPointF p, QSize area) const;

  private:
    int porcento_ = 100;
    bool preenche_ = false;
};

} // namespace corvina

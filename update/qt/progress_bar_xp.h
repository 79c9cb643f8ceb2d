#pragma once
// ProgressBarXP: a block bar with a rounded grey frame, drawn by the bar's geometry.

#include <QColor>
#include <QWidget>

namespace corvina {

class ProgressBarXP : public QWidget {
  public:
    explicit ProgressBarXP(QWidget* pai = nullptr);
    void setColor(QColor cor) { cor_ = cor; }
    void setMax(long max) { max_ = max; }
    // Repaints at once.
    void setValue(long valor);
    int percentual() const { return percentual_; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QColor cor_;
    long max_ = 100, min_ = 0, valor_ = 0;
    int percentual_ = 0;
};

} // namespace corvina

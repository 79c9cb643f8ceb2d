#pragma once
// FrmSplash: the picture and the version, for a second, before the table.

#include <QWidget>

namespace corvina {

class Splash : public QWidget {
  public:
    Splash(const QPixmap& figura, const QString& versao);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    const QPixmap& figura_;
    QString versao_;
};

// Centred on the screen it stands on.
void CentraJanela(QWidget& janela);

// Lets the window system drag a window that has no title bar, while the left button is held
// on its handle.
void moveJanela(QWidget& janela);

} // namespace corvina

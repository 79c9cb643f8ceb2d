#pragma once
// FrmSplash: the picture and the version, for a second, before the table.

#include <QWidget>

#include "players/qt/lugar_da_janela.h"

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

} // namespace corvina

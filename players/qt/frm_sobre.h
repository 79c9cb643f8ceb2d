#pragma once
// FrmSobre: the about window, a tool window with a title.

#include <QDialog>

namespace corvina {

class FrmSobre : public QDialog {
  public:
    FrmSobre(QWidget* dono, const QString& versao);

  protected:
    void paintEvent(QPaintEvent*) override;
};

} // namespace corvina

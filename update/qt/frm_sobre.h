#pragma once
// FrmSobre: the about window, a tool window with a title, and the way to an update.

#include <QDialog>

#include "update/qt/dl.h"
#include "update/versao.h"

class QPushButton;

namespace corvina {

class FrmSobre : public QDialog {
  public:
    FrmSobre(QWidget* dono, Versao versao);

    // What the update server says, as the player is told: a message, or "!*!Link" and the
    // server's answer when a newer version is offered.
    QString GetUpdate();
    // The Atualizar link: the check, the question, and FrmUp.
    void atualizar();
    // The update window, when the player accepts one; replaceable in tests.
    std::function<void(const QString& link, const QString& versao, const QString& assinatura)>
        abreFrmUp;
    // Where the check asks, the build's server by default, and how long a silence it bears.
    QString servidor;
    double paciencia = 8;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    Versao versao_;
    double escala_ = 1.0; // the small windows' scale when it opened
    DL dl1_;              // one per window: a give-up lasts until the window is opened again
    QPushButton* command1_;
};

} // namespace corvina

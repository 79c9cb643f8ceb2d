#pragma once
// FrmUp: downloads the newer installer with its bar, checks its signature, hands it to the
// privileged helper that installs it, and ends the program once the helper has installed it.
// It can't be cancelled. A refusal of the helper is told to the player, and the game goes on.

#include <QDialog>
#include <functional>

#include "update/enderecos.h"
#include "update/qt/dl.h"

class QLabel;

namespace corvina {

class ProgressBarXP;

class FrmUp : public QDialog {
  public:
    // The installer's URL, the version it declares and its signature, from the server's answer.
    FrmUp(QWidget* dono, QString link, QString versao, QString assinatura);

    // What the last steps do, replaceable in tests: run the installer (program and its
    // arguments) to its end, the window's events running, and give its exit code (-1 when it
    // can't start); end the run with exit code 1.
    std::function<int(const QString&, const QStringList&)> executaInstalador;
    std::function<void()> encerra;
    // Where the installer is put: a fresh file in the documents folder.
    std::function<QString()> escolheDestino;
    // The watchdog's patience and the key the signature must verify against.
    double paciencia = 30;
    QString chavePublica{enderecos::kChavePublica};

    // Where the installer was put, once the download has started.
    const QString& destino() const { return destino_; }

    void reject() override;

  protected:
    void showEvent(QShowEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    void baixa();
    void falha(const QString& mensagem);
    QString link_, versao_, assinatura_, destino_;
    DL dl1_;
    ProgressBarXP* barra_;
    bool ativada_ = false;
    bool ocupada_ = false; // from the first activation to the last box
};

// A fresh file for the installer in the user's documents folder, never one an earlier try left.
QString destinoDoInstalador();

} // namespace corvina

#include "update/qt/frm_up.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "core/ajustes.h"
#include "midia/pastas.h"
#include "players/qt/caixa_do_sistema.h"
#include "players/qt/lugar_da_janela.h"
#include "update/assinatura.h"
#include "update/enderecos.h"
#include "update/qt/progress_bar_xp.h"
#include "update/textos_update.h"

namespace corvina {

namespace {
const QColor kCorDaBarra(49, 106, 197);
inline constexpr int kSaidaDoUpdate = 1; // the exit code when the installer takes over
} // namespace

QString destinoDoInstalador() {
    const QDir pasta(pastaPessoal());
    QString nome;
    do {
        nome = pasta.filePath(
            QString("%1-%2.deb").arg(kTitulo).arg(QRandomGenerator::global()->generate64(), 0, 36));
    } while (QFile::exists(nome));
    return nome;
}

namespace {
// Runs the program to its end while the window's events run, so that the table stays painted
// while pkexec asks for the password and the package is installed.
int executaAteOFim(const QString& programa, const QStringList& argumentos) {
    QProcess processo;
    QEventLoop laco;
    QObject::connect(&processo, &QProcess::finished, &laco, &QEventLoop::quit);
    QObject::connect(&processo, &QProcess::errorOccurred, &laco, [&](QProcess::ProcessError e) {
        if (e == QProcess::FailedToStart) laco.quit();
    });
    processo.setProcessChannelMode(QProcess::ForwardedChannels);
    processo.start(programa, argumentos);
    if (processo.state() != QProcess::NotRunning) laco.exec();
    if (processo.exitStatus() != QProcess::NormalExit ||
        processo.error() == QProcess::FailedToStart)
        return -1;
    return processo.exitCode();
}
} // namespace

FrmUp::FrmUp(QWidget* dono, QString link, QString versao, QString assinatura)
    : QDialog(dono, Qt::Tool | Qt::WindowTitleHint), link_(std::move(link)),
      versao_(std::move(versao)), assinatura_(std::move(assinatura)) {
    setObjectName("FrmUp");
    setWindowTitle(" Lunaris Update");
    setFixedSize(307, 76); // 4605 by 1140 twips
    setModal(true);
    auto* label1 = new QLabel(QString("Lunaris - Update do ") + kTitulo, this);
    label1->setObjectName("Label1");
    label1->setGeometry(11, 8, 316, 17);
    auto* label2 = new QLabel("Fazendo o download da versão mais recente...", this);
    label2->setObjectName("Label2");
    label2->setGeometry(11, 27, 290, 17); // wider than designed, so that the text fits
    barra_ = new ProgressBarXP(this);
    barra_->setObjectName("ProgressBarXP1");
    barra_->setGeometry(8, 50, 289, 14);
    barra_->setColor(kCorDaBarra);
    executaInstalador = executaAteOFim;
    escolheDestino = destinoDoInstalador;
    encerra = [] {
        std::fflush(nullptr);
        std::_Exit(kSaidaDoUpdate); // without the closing steps: the settings are not written
    };
    if (dono) centraNoDono(*this);
}

void FrmUp::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (ativada_) return;
    ativada_ = true;
    QTimer::singleShot(0, this, [this] { baixa(); });
}

void FrmUp::baixa() {
    ocupada_ = true;
    QCoreApplication::processEvents(); // the window painted before the wait
    destino_ = escolheDestino();
    const Situacao r = dl1_.Download(
        link_, destino_, [this](int valor) { barra_->setValue(valor); }, "Id", paciencia);
    if (r != Situacao::Completo) {
        QFile::remove(destino_);
        return falha(texto::kSemDownload);
    }
    if (!QFile::exists(destino_))
        return falha(QString(texto::kSemInstalador) + "\r\r" + texto::kTenteDepois +
                     enderecos::kSite);
    // A first gate, so that the player hears of a bad file now: nothing the maker didn't sign
    // goes further. The helper checks again, as root, on a copy of its own.
    if (!assinaturaConfere(destino_.toStdString(), versao_.toStdString(), assinatura_.toStdString(),
                           chavePublica.toStdString())) {
        QFile::remove(destino_);
        return falha(texto::kSemDownload);
    }
    avisoDoSistema(this, QString("O ") + kTitulo + texto::kSeraFechado);
    const int codigo = executaInstalador(enderecos::kPkexec,
                                         {enderecos::kAjudante, destino_, versao_, assinatura_});
    if (codigo != 0) {
        QFile::remove(destino_);
        return falha(QString::fromUtf8(texto::recusaDoAjudante(codigo)));
    }
    encerra();
    ocupada_ = false;
    accept(); // only where the end was replaced
}

void FrmUp::falha(const QString& mensagem) {
    avisoDoSistema(this, mensagem);
    ocupada_ = false;
    reject();
}

void FrmUp::reject() {
    // Nothing cancels a download under way: Escape does nothing until it ends.
    if (!ocupada_) QDialog::reject();
}

void FrmUp::closeEvent(QCloseEvent* e) {
    if (ocupada_)
        e->ignore();
    else
        QDialog::closeEvent(e);
}

} // namespace corvina

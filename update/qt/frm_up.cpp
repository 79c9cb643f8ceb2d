#include "update/qt/frm_up.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "core/ajustes.h"
#include "players/qt/caixa_do_sistema.h"
#include "players/qt/pastas.h"
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

FrmUp::FrmUp(QWidget* dono, QString link, QString assinatura)
    : QDialog(dono, Qt::Tool | Qt::WindowTitleHint), link_(std::move(link)),
      assinatura_(std::move(assinatura)) {
    setObjectName("FrmUp");
    setWindowTitle(" Lunaris Update");
    setFixedSize(307, 76); // 4605 by 1140 twips
    setModal(true);
    auto* label1 = new QLabel(QString("Lunaris - Update do ") + kTitulo, this);
    label1->setObjectName("Label1");
    label1->setGeometry(11, 8, 316, 17);
    auto* label2 = new QLabel("Fazendo o download da versão mais recente...", this);
    label2->setObjectName("Label2");
    label2->setGeometry(11, 27, 266, 17);
    barra_ = new ProgressBarXP(this);
    barra_->setObjectName("ProgressBarXP1");
    barra_->setGeometry(8, 50, 289, 14);
    barra_->setColor(kCorDaBarra);
    iniciaInstalador = [](const QString& programa, const QStringList& argumentos) {
        return QProcess::startDetached(programa, argumentos);
    };
    encerra = [] {
        std::fflush(nullptr);
        std::_Exit(kSaidaDoUpdate); // without the closing steps: the settings are not written
    };
    if (dono) move(dono->window()->frameGeometry().center() - rect().center());
}

void FrmUp::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (ativada_) return;
    ativada_ = true;
    QTimer::singleShot(0, this, [this] { baixa(); });
}

void FrmUp::baixa() {
    QCoreApplication::processEvents(); // the window painted before the wait
    destino_ = destinoDoInstalador();
    const Situacao r = dl1_.Download(
        link_, destino_, [this](int valor) { barra_->setValue(valor); }, "Id", paciencia);
    // Nothing that isn't the file the maker signed is ever started: a truncated or tampered
    // download, or a key that isn't there, is a failed download.
    if (r != Situacao::Completo ||
        (QFile::exists(destino_) &&
         !assinaturaConfere(destino_.toStdString(), assinatura_.toStdString(),
                            chavePublica.toStdString()))) {
        QFile::remove(destino_);
        avisoDoSistema(this, texto::kSemDownload);
        return reject();
    }
    if (!QFile::exists(destino_)) {
        avisoDoSistema(this, QString(texto::kSemInstalador) + "\r\r" + texto::kTenteDepois +
                                 enderecos::kSite);
        return reject();
    }
    avisoDoSistema(this, QString("O ") + kTitulo + texto::kSeraFechado);
    QStringList comando = QString(enderecos::kInstalador).split(' ', Qt::SkipEmptyParts);
    if (comando.isEmpty()) return reject();
    const QString programa = comando.takeFirst();
    iniciaInstalador(programa, comando << destino_);
    encerra();
    accept(); // only where the end was replaced
}

} // namespace corvina

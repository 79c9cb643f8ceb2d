#include "update/qt/frm_sobre.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QUrl>

#include "core/ajustes.h"
#include "midia/janelas_figuras.h"
#include "players/qt/caixa_do_sistema.h"
#include "players/qt/janela_de_figura.h"
#include "players/qt/lugar_da_janela.h"
#include "update/campos.h"
#include "update/enderecos.h"
#include "update/qt/frm_up.h"
#include "update/resposta.h"
#include "update/textos_update.h"

namespace corvina {

namespace {
QString campoQ(const QString& texto, int n) {
    return QString::fromStdString(campo(texto.toStdString(), kDelimitador, n));
}
} // namespace

FrmSobre::FrmSobre(QWidget* dono, Versao versao)
    : QDialog(dono, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      servidor(enderecos::kServidorUpdate), versao_(versao) {
    setObjectName("FrmSobre");
    setWindowTitle(QString(" Sobre o ") + kTitulo);
    setFixedSize(430, 189); // 6450 by 2835 twips
    auto* label1 = new QLabel(QString("Lunaris - ") + kTitulo + "  " +
                                  QString::fromStdString(versaoParaUsuario(versao)),
                              this);
    label1->setObjectName("Label1");
    label1->setGeometry(104, 11, 316, 17);
    label1->setStyleSheet("color: rgb(245,227,162); font-weight: bold;");
    auto* label7 = new Comando("Suporte técnico", this, [] {
        QDesktopServices::openUrl(QUrl(QString(enderecos::kSite) + enderecos::kFaleConosco));
    });
    label7->setObjectName("Label7");
    // The links stand side by side, right-aligned, clear of each other and of the border: their
    // texts are wider than the places designed for them.
    label7->setGeometry(238, 135, 122, 17);
    label7->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* label10 = new Comando("Atualizar", this, [this] { atualizar(); });
    label10->setObjectName("Label10");
    label10->setGeometry(364, 135, 52, 17);
    label10->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel* link : {label7, label10}) {
        QFont f = link->font();
        f.setPixelSize(11);
        link->setFont(f);
    }
    command1_ = new QPushButton("OK", this);
    command1_->setObjectName("Command1");
    command1_->setGeometry(347, 157, 73, 24);
    command1_->setDefault(true);
    connect(command1_, &QPushButton::clicked, this, &QDialog::accept);
    abreFrmUp = [this](const QString& link, const QString& versao, const QString& assinatura) {
        FrmUp(this, link, versao, assinatura).exec();
    };
    if (dono) centraNoDono(*this);
    // Beside a large table it grows, as the other small windows do.
    escala_ = JanelaDeFigura::escala();
    if (escala_ != 1.0) escalaAJanela(*this, escala_);
}

QString FrmSobre::GetUpdate() {
    const std::string titulo = kTitulo;
    const QString url =
        servidor + "update.php?prog=" + QString::fromStdString(troca(titulo, " ", "%20"));
    const QString texto = dl1_.GetConteudo(url, "Id", paciencia);
    return QString::fromStdString(
        avaliaResposta(texto.toStdString(), versaoParaChecagem(versao_), titulo));
}

void FrmSobre::atualizar() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    command1_->setEnabled(false);
    const QString resposta = GetUpdate();
    QApplication::restoreOverrideCursor();
    command1_->setEnabled(true);
    if (campoQ(resposta, 1) != texto::kLink) {
        avisoDoSistema(this, resposta);
        return;
    }
    if (!perguntaDoSistema(this, QString(texto::kUtilizando) +
                                     QString::fromStdString(versaoParaUsuario(versao_)) + "\n\n" +
                                     texto::kDesejaAtualizar + campoQ(resposta, 3) + texto::kAgora))
        return;
    // The line ends in the delimiter, so the URL carries no line break.
    abreFrmUp(campoQ(resposta, 4), campoQ(resposta, 3), campoQ(resposta, 5));
}

void FrmSobre::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawPixmap(rect(), figuraDaJanela("frmsobre", devicePixelRatioF() * escala_));
}

} // namespace corvina

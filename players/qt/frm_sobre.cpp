#include "players/qt/frm_sobre.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "core/ajustes.h"
#include "players/qt/janelas_figuras.h"

namespace corvina {

FrmSobre::FrmSobre(QWidget* dono, const QString& versao)
    : QDialog(dono, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName("FrmSobre");
    setWindowTitle(QString(" Sobre o ") + kTitulo);
    setFixedSize(430, 189); // 6450 by 2835 twips
    auto* label1 = new QLabel(QString("Lunaris - ") + kTitulo + "  " + versao, this);
    label1->setObjectName("Label1");
    label1->setGeometry(104, 11, 316, 17);
    label1->setStyleSheet("color: rgb(245,227,162); font-weight: bold;");
    auto* command1 = new QPushButton("OK", this);
    command1->setObjectName("Command1");
    command1->setGeometry(347, 157, 73, 24);
    command1->setDefault(true);
    connect(command1, &QPushButton::clicked, this, &QDialog::accept);
    if (dono) move(dono->window()->frameGeometry().center() - rect().center());
}

void FrmSobre::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawPixmap(0, 0, figuraDaJanela("frmsobre"));
}

} // namespace corvina

#include "players/qt/caixa_do_sistema.h"

#include <QPushButton>

#include "core/ajustes.h"

namespace corvina {

namespace {
QString tituloOuPrograma(const QString& titulo) {
    return titulo.isEmpty() ? QString(kTitulo) : titulo;
}
} // namespace

QString comQuebras(QString texto) {
    texto.replace("\r\n", "\n");
    texto.replace('\r', '\n');
    return texto;
}

void avisoDoSistema(QWidget* dono, const QString& texto, const QString& titulo,
                    QMessageBox::Icon icone) {
    QMessageBox caixa(icone, tituloOuPrograma(titulo), comQuebras(texto), QMessageBox::Ok, dono);
    caixa.setObjectName("caixaMensagem");
    caixa.exec();
}

bool perguntaDoSistema(QWidget* dono, const QString& texto, const QString& titulo,
                       QMessageBox::Icon icone) {
    QMessageBox caixa(icone, tituloOuPrograma(titulo), comQuebras(texto),
                      QMessageBox::Yes | QMessageBox::No, dono);
    caixa.setObjectName("caixaMensagem");
    caixa.button(QMessageBox::Yes)->setText("Sim");
    caixa.button(QMessageBox::No)->setText("Não");
    return caixa.exec() == QMessageBox::Yes;
}

} // namespace corvina

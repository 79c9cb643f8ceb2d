#include "players/qt/frm_placar.h"

#include <QMouseEvent>

#include "core/module1.h"
#include "core/textos.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

FrmPlacar::FrmPlacar(QWidget* dono, const Module1& modulo, const Placar& placar,
                     std::function<void(QWidget*)> abreEstatisticas,
                     std::function<void(QWidget*)> abreRevisao)
    : JanelaDeFigura(dono, "frmplacar", {345, 176}) {
    setObjectName("FrmPlacar");
    setMouseTracking(true);
    alca(rotulo("Image1", "", emPixels(0, 0, 5145, 270)));
    const QColor claro(240, 236, 220), ouro(245, 227, 162);
    rotulo("Label1", QString::fromStdString(placar.manchete), emPixels(195, 330, 4770, 270), 13,
           true, ouro, Qt::AlignCenter);
    label3_ = rotulo("Label3", QString::fromStdString(modulo.nomeJogador),
                     emPixels(255, 915, 1890, 270), 12, true, claro, Qt::AlignCenter);
    label4_ = rotulo("Label4", texto::kCpu, emPixels(3000, 915, 1890, 270), 12, true, claro,
                     Qt::AlignCenter);
    label5_ = rotulo("Label5", QString::number(placar.pontosJog), emPixels(240, 1275, 1890, 540),
                     30, true, claro, Qt::AlignCenter);
    rotulo("Label2", "X", emPixels(2295, 1095, 540, 510), 22, true, ouro, Qt::AlignCenter);
    label6_ = rotulo("Label6", QString::number(placar.pontosMac), emPixels(2955, 1290, 1920, 555),
                     30, true, claro, Qt::AlignCenter);
    label8_ = comando("Label8", "OK", emPixels(3780, 2100, 1215, 255), [this] { accept(); });
    label8_->setAlignment(Qt::AlignCenter);
    label8_->setStyleSheet("color: rgb(224,224,224);");
    // At the end of a match, whether or not it blinks (a match won with the sound off doesn't).
    const bool fimDaPartida =
        placar.pontosJog == kPontosDaPartida || placar.pontosMac == kPontosDaPartida;
    int left = 14;
    const auto oferece = [this, &left](const char* nome, const char* texto,
                                       std::function<void(QWidget*)> abre) {
        QLabel* l = comando(
            nome, QString("<u>%1</u>").arg(texto), QRect(left, 140, 116, 17),
            [this, abre] {
                abre(this);
                activateWindow(); // the keys come back here: Enter still closes the score
            },
            12, false);
        l->setStyleSheet("color: rgb(240,236,220);");
        left += 116;
    };
    if (fimDaPartida && abreEstatisticas) oferece("Estatisticas", "Estatísticas", abreEstatisticas);
    if (abreRevisao) oferece("Revisao", "Revisão da mão", abreRevisao);
    timer1_.setInterval(kPiscaMs);
    connect(&timer1_, &QTimer::timeout, this, [this] { pisca(); });
    if (placar.pisca) timer1_.start();
    centraNoDono(*this);
}

bool FrmPlacar::tecla(int key) {
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    accept();
    return true;
}

void FrmPlacar::pisca() {
    aceso_ = !aceso_;
    for (QLabel* l : {label3_, label4_, label5_, label6_}) l->setVisible(aceso_);
}

void FrmPlacar::mouseMoveEvent(QMouseEvent* e) {
    // Only over the bare window, not over its labels; and it stays black.
    if (!childAt(e->position().toPoint())) label8_->setStyleSheet("color: rgb(0,0,0);");
}

} // namespace corvina

#include "players/qt/frm_opc.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QScreen>
#include <QSlider>

#include "core/ajustes.h"
#include "players/opcoes.h"
#include "players/qt/lugar_da_janela.h"
#include "table/tamanho_da_mesa.h"

namespace corvina {

namespace {
const char* const kEstiloCaixa = "QCheckBox { color: rgb(240,236,220); }";
}

FrmOpc::FrmOpc(QWidget* dono, Module1& modulo, Armazem& armazem)
    : JanelaDeFigura(dono, "frmopc", {376, 235}), modulo_(modulo), armazem_(armazem) {
    setObjectName("FrmOpc");
    const auto caixa = [this](const char* nome, const QString& texto, QRect lugar, bool marcada) {
        auto* c = new QCheckBox(texto, this);
        c->setObjectName(nome);
        c->setGeometry(lugar);
        c->setStyleSheet(kEstiloCaixa);
        c->setChecked(marcada);
        return c;
    };
    check1_ = caixa("Check1", "Tocar som", emPixels(510, 1065, 1455 + 600, 255), modulo.tocarSom);
    check2_ =
        caixa("Check2", "Tocar música", emPixels(510, 1410, 1815 + 600, 255), modulo.tocarMusica);
    // Below the lower edge: nobody reaches it, so the cards always rise under the mouse; nor
    // does Tab stop on it.
    check3_ = caixa("Check3", "Animar suas cartas ao passar o mouse sobre elas.",
                    emPixels(360, 3675, 4095, 255), modulo.animarCartas);
    check3_->setFocusPolicy(Qt::NoFocus);
    // Beside the sounds, in the window's free corner: the size of the table.
    rotulo("RotuloTamanho", "Tamanho da mesa", QRect(214, 68, 140, 17));
    tamanho_ = new QComboBox(this);
    tamanho_->setObjectName("TamanhoDaMesa");
    tamanho_->setAccessibleName("Tamanho da mesa");
    tamanho_->setGeometry(214, 88, 90, 22);
    // Only the sizes whose table lies wholly on the screen the table is on.
    const QScreen* tela = dono ? dono->screen() : QGuiApplication::primaryScreen();
    const QRect livre = tela ? tela->availableGeometry() : QRect(0, 0, 1 << 20, 1 << 20);
    for (const int t : tamanhosQueCabem(livre.width(), livre.height()))
        tamanho_->addItem(QString("%1%").arg(t), t);
    tamanho_->setCurrentIndex(std::max(0, tamanho_->findData(modulo.tamanhoDaMesa)));
    rotulo("Label1", "Velocidade da movimentação das cartas", emPixels(1170, 1845, 3795, 255));
    hscroll1_ = new QSlider(Qt::Horizontal, this);
    hscroll1_->setObjectName("HScroll1");
    hscroll1_->setAccessibleName("Velocidade da movimentação das cartas");
    hscroll1_->setGeometry(emPixels(510, 2115, 4695, 315));
    hscroll1_->setRange(kVelocidadeMinima, kVelocidadeMaxima);
    hscroll1_->setPageStep(1);
    hscroll1_->setValue(modulo.velocidade);
    rotulo("Label2", "< Mais rápido", emPixels(510, 2475, 1500, 255), 11);
    rotulo("Label3", "Mais lento >", emPixels(3585, 2475, 1620, 255), 11, false,
           QColor(240, 236, 220), Qt::AlignRight | Qt::AlignVCenter);
    comando("Label4", "OK", emPixels(3960, 3120, 1440, 300), [this] {
        ok();
    })->setAlignment(Qt::AlignCenter);
    comando("Label5", "Cancelar", emPixels(2295, 3105, 1515, 300), [this] {
        reject();
    })->setAlignment(Qt::AlignCenter);
    centraNoDono(*this);
}

bool FrmOpc::tecla(int key) {
    if (key != Qt::Key_Escape) return false;
    reject();
    return true;
}

void FrmOpc::ok() {
    aceitaOpcoes(modulo_, armazem_,
                 {check1_->isChecked(), check2_->isChecked(), check3_->isChecked(),
                  hscroll1_->value(), tamanho_->currentData().toInt()});
    accept();
}

} // namespace corvina

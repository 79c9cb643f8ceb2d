#include "players/qt/frm_novo_jogador.h"

#include <QLineEdit>

#include "players/qt/frm_sim_nao.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

FrmNovoJogador::FrmNovoJogador(QWidget* dono, Module1& modulo, Armazem& armazem,
                               std::function<void(const std::string&)> adicionaNaLista)
    : JanelaDeFigura(dono, "frmnovojogador", {344, 130}),
      novo_(modulo, armazem,
            {[this](const std::string& m, const std::string& t) { return SimNao(this, m, t); },
             std::move(adicionaNaLista)}) {
    setObjectName("FrmNovoJogador");
    // The dark shadow up and to the left, the light grey heading over it.
    rotulo("Label5", "Novo Jogador", emPixels(210, 165, 5550, 345), 16, true, QColor(20, 20, 20));
    alca(rotulo("Label4", "Novo Jogador", emPixels(225, 180, 5550, 345), 16, true,
                QColor(220, 220, 220)));
    rotulo("Label1", "Digite o seu nome ou apelido:", emPixels(375, 690, 3495, 255));
    text1_ = new QLineEdit(this);
    text1_->setObjectName("Text1");
    text1_->setAccessibleName("Nome do jogador");
    text1_->setGeometry(emPixels(375, 960, 4440, 315));
    text1_->setMaxLength(static_cast<int>(kLetrasDoNome));
    text1_->setText(QString::fromStdString(novo_.texto()));
    text1_->selectAll(); // typing replaces the proposed name
    connect(text1_, &QLineEdit::returnPressed, this, [this] { ok(); });
    comando("Label3", "OK", emPixels(3600, 1530, 1215, 255), [this] {
        ok();
    })->setAlignment(Qt::AlignCenter);
    comando("Label2", "Cancelar", emPixels(1905, 1530, 1380, 225), [this] {
        reject();
    })->setAlignment(Qt::AlignCenter);
    CentraJanela(*this);
    text1_->setFocus();
}

bool FrmNovoJogador::tecla(int key) {
    if (key != Qt::Key_Escape) return false;
    reject();
    return true;
}

void FrmNovoJogador::ok() {
    novo_.digita(text1_->text().toStdString());
    const bool fecha = novo_.ok();
    // An emptied box became the proposed name, and what stands in the box is the name that
    // closing hands to the table.
    text1_->setText(QString::fromStdString(novo_.texto()));
    if (fecha) {
        accept();
        return;
    }
    text1_->selectAll();
    text1_->setFocus();
}

void FrmNovoJogador::done(int resultado) {
    novo_.digita(text1_->text().toStdString());
    novo_.fecha();
    JanelaDeFigura::done(resultado);
}

} // namespace corvina

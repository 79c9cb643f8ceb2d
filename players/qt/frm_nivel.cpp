#include "players/qt/frm_nivel.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <algorithm>
#include <string>

#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
const char* const kEstiloCaixa = "QCheckBox { color: rgb(240,236,220); }";
constexpr int kTopoDasOpcoes = 46, kAlturaDaOpcao = 56;
} // namespace

FrmNivel::FrmNivel(QWidget* dono, Module1& modulo, Armazem& armazem)
    : JanelaDeFigura(dono, "frmnivel", {380, 270}), escolha_(modulo, armazem) {
    setObjectName("FrmNivel");
    setWindowTitle("Nível do adversário");
    alca(rotulo("Titulo", "", QRect(0, 0, 380, 36)));
    for (std::size_t i = 0; i < kNiveisDoJogo.size(); ++i) {
        const TipoNivel n = kNiveisDoJogo[i].tipo;
        const int y = kTopoDasOpcoes + kAlturaDaOpcao * static_cast<int>(i);
        const auto escolhe = [this, n] {
            escolha_.escolhe(n);
            mostra();
        };
        marcas_[i] = comando(("Marca" + std::to_string(i)).c_str(), "", QRect(24, y + 6, 22, 22),
                             escolhe, 16);
        comando(("Nivel" + std::to_string(i)).c_str(),
                QString::fromStdString(std::string(kNiveisDoJogo[i].nome)),
                QRect(50, y + 5, 300, 19), escolhe, 13);
        rotulo(("Descricao" + std::to_string(i)).c_str(),
               QString::fromStdString(descricaoDoNivel(n)), QRect(50, y + 26, 308, 18), 11);
    }
    justa_ = new QCheckBox("Distribuição justa: a CPU nunca fica com a sua mão", this);
    justa_->setObjectName("Justa");
    justa_->setGeometry(20, 213, 346, 20);
    justa_->setStyleSheet(kEstiloCaixa);
    connect(justa_, &QCheckBox::clicked, this, [this] {
        escolha_.alternaJusta();
        mostra();
    });
    comando("Cancelar", "Cancelar", QRect(196, 238, 80, 22), [this] {
        reject();
    })->setAlignment(Qt::AlignCenter);
    comando("OK", "OK", QRect(284, 238, 80, 22), [this] {
        escolha_.confirma();
        accept();
    })->setAlignment(Qt::AlignCenter);
    vigiaTeclas();
    mostra();
    centraNoDono(*this);
}

void FrmNivel::mostra() {
    for (std::size_t i = 0; i < marcas_.size(); ++i)
        marcas_[i]->setText(kNiveisDoJogo[i].tipo == escolha_.nivel() ? "●" : "○");
    justa_->setChecked(escolha_.justa());
    justa_->setEnabled(escolha_.justaEscolhivel());
}

bool FrmNivel::tecla(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        escolha_.confirma();
        accept();
        return true;
    }
    if (key == Qt::Key_Escape) {
        reject();
        return true;
    }
    // The arrows and the first letters move the choice, as in a list.
    int i = static_cast<int>(escolha_.nivel());
    if (key == Qt::Key_Up)
        i = std::max(0, i - 1);
    else if (key == Qt::Key_Down)
        i = std::min(2, i + 1);
    else if (key == Qt::Key_C)
        i = 0;
    else if (key == Qt::Key_E)
        i = 1;
    else if (key == Qt::Key_F)
        i = 2;
    else if (key == Qt::Key_J) { // Space is left to the focused part, as in every window
        escolha_.alternaJusta();
        mostra();
        return true;
    } else
        return false;
    escolha_.escolhe(kNiveisDoJogo[i].tipo);
    mostra();
    return true;
}

} // namespace corvina

#include "players/qt/frm_tipos.h"

#include "core/ajustes.h"
#include "core/textos.h"
#include "players/qt/lugar_da_janela.h"
#include "players/textos_jogadores.h"

namespace corvina {

FrmTipos::FrmTipos(QWidget* dono, Module1& modulo, Som* som)
    : JanelaDeFigura(dono, "frmtipos", {338, 261}), modulo_(modulo), som_(som) {
    setObjectName("frmtipos");
    alca(rotulo("Image1", "", emPixels(0, 0, 5100, 540)));
    const int lefts[] = {210, 1410, 2610, 3810}, tops[] = {645, 2205};
    for (int i = 1; i <= kVersos; ++i) {
        const QByteArray nome = "tipo" + QByteArray::number(i);
        Comando* verso = comando(nome.constData(), "",
                                 emPixels(lefts[(i - 1) % 4], tops[(i - 1) / 4], 1065, 1440),
                                 [this, i] { escolhe(i); });
        // The back in use is framed, and said so.
        const bool emUso = i == modulo.tipoCarta;
        verso->setAccessibleName(QString("Verso %1%2").arg(i).arg(emUso ? " (em uso)" : ""));
        if (emUso) verso->setStyleSheet("border: 2px solid rgb(230,196,110); border-radius: 3px;");
    }
    vigiaTeclas();
    centraNoDono(*this);
}

void FrmTipos::escolhe(int tipo) {
    modulo_.tipoCarta = static_cast<int16>(tipo);
    if (modulo_.tocarSom && som_) som_->tocaSom(som::kClique, false);
    accept();
}

bool FrmTipos::tecla(int key) {
    if (key != Qt::Key_Escape) return false;
    reject();
    return true;
}

} // namespace corvina

#include "players/qt/frm_sim_nao.h"

#include "players/qt/caixa_do_sistema.h"
#include "players/qt/janela_de_figura.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
class FrmSimNao : public JanelaDeFigura {
  public:
    FrmSimNao(QWidget* dono, const QString& mensagem, const QString& titulo)
        : JanelaDeFigura(dono, "frmsimnao", {400, 130}) {
        setObjectName("FrmSimNao");
        setWindowTitle(titulo);
        // The title twice, a shadow under it.
        rotulo("Label5", titulo, emPixels(195, 180, 5550, 255), 14, true, QColor(0, 0, 0));
        QLabel* l4 = rotulo("Label4", titulo, emPixels(210, 195, 5550, 255), 14, true,
                            QColor(220, 220, 220));
        alca(l4);
        QLabel* pergunta = rotulo("Label1", comQuebras(mensagem), emPixels(315, 690, 5355, 615));
        pergunta->setWordWrap(true);
        pergunta->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        comando("Label2", "Sim", emPixels(4320, 1545, 1395, 225), [this] {
            responde(true);
        })->setAlignment(Qt::AlignCenter);
        comando("Label3", "Não", emPixels(2625, 1545, 1560, 225), [this] {
            responde(false);
        })->setAlignment(Qt::AlignCenter);
        vigiaTeclas();
        CentraJanela(*this);
    }
    bool resposta = false;

  protected:
    bool tecla(int key) override {
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            responde(true);
            return true;
        }
        if (key == Qt::Key_Escape) {
            responde(false);
            return true;
        }
        return false;
    }

  private:
    void responde(bool sim) {
        resposta = sim;
        accept();
    }
};
} // namespace

bool SimNao(QWidget* dono, const std::string& mensagem, const std::string& titulo) {
    FrmSimNao janela(dono, QString::fromStdString(mensagem), QString::fromStdString(titulo));
    janela.exec();
    return janela.resposta;
}

} // namespace corvina

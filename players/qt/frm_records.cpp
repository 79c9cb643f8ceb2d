#include "players/qt/frm_records.h"

#include <QMouseEvent>

#include "core/textos.h"
#include "players/lista_de_jogadores.h"
#include "players/qt/frm_estatisticas.h"
#include "players/qt/frm_sim_nao.h"
#include "players/qt/lugar_da_janela.h"
#include "players/textos_jogadores.h"

namespace corvina {

namespace {
const QColor kBranco(255, 255, 255), kVerde(0, 255, 0);
}

FrmRecords::FrmRecords(QWidget* dono, const Module1& modulo, Armazem& armazem,
                       Historicos& historicos, Som* som, const Imagens* imagens)
    : JanelaDeFigura(dono, "frmrecords", {642, 317}), modulo_(modulo), armazem_(armazem),
      historicos_(historicos), imagens_(imagens), som_(som) {
    setObjectName("FrmRecords");
    setWindowTitle("Hall da Fama");
    for (int r = 0; r < kLinhasDoHall; ++r) {
        const int top = 1260 + 480 * r;
        const auto celula = [&](const char* nome, int left, int width, Qt::Alignment a) {
            const QByteArray n = QByteArray(nome) + "(" + QByteArray::number(r + 1) + ")";
            QLabel* l = rotulo(n.constData(), ".", emPixels(left, top, width, 375), 16, true,
                               kBranco, a | Qt::AlignVCenter);
            l->setAttribute(Qt::WA_TransparentForMouseEvents); // a click on it closes the window
            return l;
        };
        linhas_[r] = {celula("lbNome", 195, 5055, Qt::AlignLeft),
                      celula("lbVitorias", 5940, 855, Qt::AlignRight),
                      celula("lbDerrotas", 7155, 975, Qt::AlignRight),
                      celula("lbSaldo", 8475, 855, Qt::AlignRight)};
    }
    // The commands' words are drawn on the window's picture: a screen reader is told them.
    comando("Image1", "", emPixels(8205, 4185, 1245, 315), [this] {
        if (modulo_.tocarSom && som_) som_->tocaSom(som::kClique, false);
        accept();
    })->setAccessibleName("Fechar");
    comando("Image3", "", emPixels(9030, 210, 450, 330), [this] {
        accept();
    })->setAccessibleName("Fechar");
    comando("Image4", "", emPixels(180, 4185, 1125, 315), [this] {
        zera();
    })->setAccessibleName("Zerar");
    // Beside the hall: each player's own history.
    comando("Estatisticas", "", QRect(270, 279, 102, 21), [this] {
        FrmEstatisticas(this, modulo_, armazem_, historicos_, imagens_).exec();
        activateWindow(); // the keys come back to the hall
    })->setAccessibleName("Estatísticas");
    monta();
    vigiaTeclas();
    CentraJanela(*this);
}

void FrmRecords::monta() {
    const auto hall = montaHall(armazem_, modulo_.nomeJogador);
    for (int r = 0; r < kLinhasDoHall; ++r) {
        const LinhaDoHall& h = hall[r];
        const Linha& l = linhas_[r];
        // Rows without a player keep what they had.
        if (h.preenchida) {
            l.nome->setText(QString::fromStdString(h.nome));
            l.vitorias->setText(QString::fromStdString(h.vitorias));
            l.derrotas->setText(QString::fromStdString(h.derrotas));
            l.saldo->setText(QString::fromStdString(h.saldo));
        }
        const bool verde = l.nome->text().toStdString() == modulo_.nomeJogador;
        for (QLabel* c : {l.nome, l.vitorias, l.derrotas, l.saldo})
            c->setStyleSheet(verde ? "color: rgb(0,255,0);" : "color: rgb(255,255,255);");
    }
}

void FrmRecords::zera() {
    if (!SimNao(this, texto::kZerarHall, texto::kConfirmacao)) return;
    if (modulo_.tocarSom && som_) som_->tocaSom(som::kApaga, false);
    zeraHall(armazem_);
    monta();
    // The histories are the players' own: asked apart, after the hall is wiped.
    if (SimNao(this, texto::kZerarEstatisticas, texto::kConfirmacao))
        historicos_.zeraHistoricos(leListaDeJogadores(armazem_));
}

void FrmRecords::primeiraAtivacao() {
    if (som_) som_->iniciaMusica(modulo_.tocarMusica);
}

void FrmRecords::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) accept(); // a click on the surface closes it
}

bool FrmRecords::tecla(int key) {
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter &&
        key != Qt::Key_Escape)
        return false;
    accept();
    return true;
}

void FrmRecords::done(int resultado) {
    if (som_) som_->fechaMusica();
    JanelaDeFigura::done(resultado);
}

} // namespace corvina

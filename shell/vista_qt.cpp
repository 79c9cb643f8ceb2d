#include "shell/vista_qt.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>
#include <QThread>

#include "core/ajustes.h"

namespace corvina {

namespace {
inline constexpr const char* kSemNome = "Sem Nome";
} // namespace

int VistaQt::caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) {
    if (teste_) return estilo == kEstiloSimNao ? kBotaoNao : kBotaoOk;
    QMessageBox caixa(tela_);
    caixa.setWindowTitle(QString::fromStdString(titulo.empty() ? kTitulo : titulo));
    caixa.setText(QString::fromStdString(texto));
    if (estilo == kEstiloSimNao) {
        caixa.setIcon(QMessageBox::Question);
        caixa.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        caixa.button(QMessageBox::Yes)->setText("Sim");
        caixa.button(QMessageBox::No)->setText("Não");
        return caixa.exec() == QMessageBox::Yes ? kBotaoSim : kBotaoNao;
    }
    caixa.setIcon(estilo == kEstiloInformacao ? QMessageBox::Information : QMessageBox::NoIcon);
    caixa.exec();
    return kBotaoOk;
}

void VistaQt::preparaPlacar(const Placar& placar) {
    placar_ = placar;
}

void VistaQt::abreJanela(Janela janela) {
    switch (janela) {
    case Janela::FrmNome:
        // Until the choice of player exists: the last player, or nobody yet.
        jogo().modulo.nomeJogador = leAjuste(chaveBase(), ajuste::kUltimoJogador, kSemNome);
        jogo().modulo.nomeCancelado = false;
        break;
    case Janela::FrmPlacar:
        // A plain stand-in for the final-score window, so that a won hand is seen.
        if (!teste_) {
            const std::string texto = placar_.manchete + "\n\n" + jogo().modulo.nomeJogador + "  " +
                                      std::to_string(placar_.pontosJog) + "  x  " +
                                      std::to_string(placar_.pontosMac) + "  CPU";
            caixaMensagem(texto, kEstiloInformacao, "Placar");
        }
        break;
    default:
        break; // the other windows come later
    }
}

void VistaQt::tocaSom(const std::string& arquivo, bool aguarda) {
    if (som_) som_->tocaSom(arquivo, aguarda);
}

void VistaQt::espera(int milissegundos) {
    if (!teste_) QThread::msleep(static_cast<unsigned long>(milissegundos));
}

void VistaQt::processaEventos() {
    QCoreApplication::processEvents();
}

std::string VistaQt::leAjuste(const std::string& chave, const std::string& nome,
                              const std::string& padrao) {
    return settings_.le(chave, nome, padrao);
}

bool VistaQt::gravaAjuste(const std::string& chave, const std::string& nome,
                          const std::string& valor) {
    return settings_.grava(chave, nome, valor);
}

void VistaQt::mudou() {
    if (tela_) tela_->update();
}

} // namespace corvina

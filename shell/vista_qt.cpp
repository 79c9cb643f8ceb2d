#include "shell/vista_qt.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "core/ajustes.h"
#include "players/qt/caixa_do_sistema.h"

namespace corvina {

int VistaQt::caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) {
    if (teste_) return estilo == kEstiloSimNao ? kBotaoNao : kBotaoOk;
    const QString t = QString::fromStdString(texto), tt = QString::fromStdString(titulo);
    if (estilo == kEstiloSimNao) return perguntaDoSistema(tela_, t, tt) ? kBotaoSim : kBotaoNao;
    avisoDoSistema(tela_, t, tt,
                   estilo == kEstiloInformacao ? QMessageBox::Information : QMessageBox::NoIcon);
    return kBotaoOk;
}

void VistaQt::preparaPlacar(const Placar& placar) {
    placar_ = placar;
}

void VistaQt::abreJanela(Janela janela) {
    if (aoAbrirJanela) return aoAbrirJanela(janela);
    if (janelas_) janelas_->abre(janela, placar_);
    // The player chosen may play in another mode.
    if (janela == Janela::FrmNome && !jogo().modulo.nomeCancelado) mostraMesa();
}

void VistaQt::tocaSom(const std::string& arquivo, bool aguarda) {
    if (som_) som_->tocaSom(arquivo, aguarda);
}

void VistaQt::espera(int milissegundos) {
    if (teste_) return;
    // The table is painted as it stands during the pause; the player's input waits for its end.
    QEventLoop laco;
    QTimer::singleShot(milissegundos, &laco, &QEventLoop::quit);
    laco.exec(QEventLoop::ExcludeUserInputEvents);
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
    if (aoMudar_) aoMudar_();
}

} // namespace corvina

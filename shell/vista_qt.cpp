#include "shell/vista_qt.h"

#include <QDate>
#include <QPointer>

#include "core/ajustes.h"
#include "core/partida_guardada.h"
#include "machine/partida_em_texto.h"
#include "players/fim_da_partida.h"
#include "players/partida_para_retomar.h"
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

VistaQt::VistaQt(Settings& settings, BancoDoJogo& banco) : settings_(settings), banco_(banco) {
    relogio_.setSingleShot(true);
    QObject::connect(&relogio_, &QTimer::timeout, [this] {
        if (auto h = std::exchange(pausada_, {})) h.resume();
    });
}

VistaQt::~VistaQt() {
    terminaPensamentos();
}

// The window's own loop runs between the steps of a move; nothing is run from inside one.
void VistaQt::processaEventos() {
    if (tela_) tela_->update();
}

bool VistaQt::adia(int milissegundos, std::coroutine_handle<> retomada) {
    if (teste_ && pausaDeTeste_ < 0) return false;
    pausada_ = retomada;
    relogio_.start(teste_ ? pausaDeTeste_ : milissegundos);
    return true;
}

bool VistaQt::pensa(const std::function<void()>& trabalho, std::coroutine_handle<> retomada) {
    if ((teste_ && pausaDeTeste_ < 0) || !tela_) {
        trabalho();
        return false;
    }
    // Thoughts whose answers were taken or dropped, and that have ended, are let go.
    std::erase_if(pensamentos_, [](const Pensamento& p) {
        return *p.esquecido &&
               p.trabalho.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
    auto esquecido = std::make_shared<bool>(false);
    QPointer<QWidget> tela(tela_);
    auto fim = std::async(std::launch::async, [trabalho, tela, esquecido, retomada] {
        trabalho();
        // Back on the window's thread: the move goes on there, unless it was dropped meanwhile.
        QMetaObject::invokeMethod(
            tela,
            [esquecido, retomada] {
                if (!*esquecido) {
                    *esquecido = true;
                    retomada.resume();
                }
            },
            Qt::QueuedConnection);
    });
    pensamentos_.push_back({retomada, esquecido, std::move(fim)});
    return true;
}

void VistaQt::esquece(std::coroutine_handle<> retomada) {
    if (pausada_ == retomada) {
        relogio_.stop();
        pausada_ = {};
    }
    for (Pensamento& p : pensamentos_)
        if (p.retomada == retomada) *p.esquecido = true;
}

void VistaQt::terminaPensamentos() {
    for (Pensamento& p : pensamentos_) {
        *p.esquecido = true;
        if (p.trabalho.valid()) p.trabalho.wait();
    }
    pensamentos_.clear();
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

void VistaQt::partidaTerminada(const FimDaPartida& fim) {
    const QDate hoje = QDate::currentDate();
    guardada_.clear(); // the database drops the kept match with the match's end
    registraFimDaPartida(settings_, banco_, fim,
                         diaDoHistorico(hoje.year(), hoje.month(), hoje.day()));
    // Once more on its own, should the match's transaction have failed: a match that ended is
    // never offered again.
    banco_.esquecePartida(fim.nome);
}

bool VistaQt::partidaGuardada(const std::string& nome, PartidaGuardada& partida) {
    auto lida = partidaParaRetomar(banco_, nome);
    if (!lida) return false;
    partida = std::move(*lida);
    guardada_ = escrevePartida(partida);
    return true;
}

void VistaQt::esquecePartida(const std::string& nome) {
    banco_.esquecePartida(nome);
    guardada_.clear();
}

void VistaQt::guardaPartida() {
    const Jogo& j = jogo();
    const Module1& g = j.modulo;
    if (g.nomeJogador.empty() || !j.registro.distribuida() || j.maosEmJogo) return;
    // A match where nothing has been played yet is nothing to come back to.
    if (g.pontosJog == 0 && g.pontosMac == 0 && j.maos.empty() && j.registro.lances.empty()) {
        if (!guardada_.empty()) esquecePartida(g.nomeJogador);
        return;
    }
    std::string texto = escrevePartida(guardaDe(j));
    if (texto == guardada_) return;
    if (banco_.guardaPartida(g.nomeJogador, texto)) guardada_ = std::move(texto);
}

} // namespace corvina

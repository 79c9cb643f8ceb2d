#pragma once
// VistaMesa on the screen: the scene's operations, plus what only the platform does: message
// boxes, the small windows, time, events and the store.

#include <QTimer>
#include <QWidget>
#include <functional>
#include <future>
#include <memory>
#include <vector>

#include "midia/audio/som.h"
#include "players/banco_do_jogo.h"
#include "players/qt/settings.h"
#include "shell/janelas_qt.h"
#include "table/vista_de_cena.h"

namespace corvina {

class VistaQt : public VistaDeCena {
  public:
    VistaQt(Settings& settings, BancoDoJogo& banco);
    ~VistaQt() override;
    VistaQt(const VistaQt&) = delete;
    VistaQt& operator=(const VistaQt&) = delete;

    void tela(QWidget* w) { tela_ = w; }
    // Called after every change of the table, once the window is asked to repaint.
    void aoMudar(std::function<void()> f) { aoMudar_ = std::move(f); }
    // The sound of the game; without one, silence.
    void som(Som* s) { som_ = s; }
    // The small windows; without them a window closes at once.
    void janelas(JanelasQt* j) { janelas_ = j; }
    // For tests only: no pauses, the machine thinks in place, and message boxes answer at once
    // (OK, or Não); windows open through this when it is set.
    std::function<void(Janela)> aoAbrirJanela;
    void modoDeTeste(bool ligado) { teste_ = ligado; }
    // In test mode still, pauses of this length pass through the window's loop and the machine
    // thinks on a worker, as on the desktop: input can come between the steps of a move.
    void pausasDeTeste(int milissegundos) { pausaDeTeste_ = milissegundos; }

    int caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) override;
    void preparaPlacar(const Placar& placar) override;
    void abreJanela(Janela janela) override;
    void tocaSom(const std::string& arquivo, bool aguarda) override;
    void processaEventos() override;
    bool adia(int milissegundos, std::coroutine_handle<> retomada) override;
    bool pensa(const std::function<void()>& trabalho, std::coroutine_handle<> retomada) override;
    void esquece(std::coroutine_handle<> retomada) override;
    // Waits for the thoughts still running, whose answers nobody takes any more.
    void terminaPensamentos();
    std::string leAjuste(const std::string& chave, const std::string& nome,
                         const std::string& padrao) override;
    bool gravaAjuste(const std::string& chave, const std::string& nome,
                     const std::string& valor) override;
    void abreLote() override { settings_.abreLote(); }
    void fechaLote() override { settings_.fechaLote(); }
    // Kept in the player's history, dated today.
    void partidaTerminada(const FimDaPartida& fim) override;
    // A kept match that can't be played on is set aside here, with a line on stderr.
    bool partidaGuardada(const std::string& nome, PartidaGuardada& partida) override;
    void esquecePartida(const std::string& nome) override;
    // The table waits for the player: the match is kept as it stands, if anything changed.
    void guardaPartida();

  protected:
    void mudou() override;

  private:
    Settings& settings_;
    BancoDoJogo& banco_;
    QWidget* tela_ = nullptr;
    std::function<void()> aoMudar_;
    Som* som_ = nullptr;
    JanelasQt* janelas_ = nullptr;
    bool teste_ = false;
    int pausaDeTeste_ = -1; // none: a test's moves run through without waiting
    Placar placar_;
    std::string guardada_; // the text last kept, so that a rest that changed nothing writes nothing
    // The one pause under way: the game is one move at a time.
    QTimer relogio_;
    std::coroutine_handle<> pausada_;
    // Thoughts on workers; each answer comes back through the window's loop, unless forgotten.
    struct Pensamento {
        std::coroutine_handle<> retomada;
        std::shared_ptr<bool> esquecido;
        std::future<void> trabalho;
    };
    std::vector<Pensamento> pensamentos_;
};

} // namespace corvina

#pragma once
// Opens the small windows of the table, modally, and hands their results back to the game.

#include <QWidget>

#include "core/armazem.h"
#include "core/jogo.h"
#include "midia/audio/som.h"
#include "midia/imagens.h"
#include "players/historicos.h"
#include "update/versao.h"

namespace corvina {

class JanelasQt {
  public:
    JanelasQt(Jogo& jogo, Armazem& armazem, Historicos& historicos, Som* som, Versao versao)
        : jogo_(jogo), armazem_(armazem), historicos_(historicos), som_(som), versao_(versao) {}
    void dono(QWidget* w) { dono_ = w; }
    // The card pictures the review draws with; without them no review is offered.
    void imagens(const Imagens* i) { imagens_ = i; }
    // Returns when the window has closed.
    void abre(Janela janela, const Placar& placar);

  private:
    Jogo& jogo_;
    Armazem& armazem_;
    Historicos& historicos_;
    Som* som_;
    Versao versao_;
    QWidget* dono_ = nullptr;
    const Imagens* imagens_ = nullptr;
};

} // namespace corvina

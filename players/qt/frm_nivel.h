#pragma once
// FrmNivel: the opponent's level and the fair deal of the player at the table.

#include <array>

#include "core/armazem.h"
#include "core/module1.h"
#include "players/escolha_de_nivel.h"
#include "players/qt/janela_de_figura.h"

class QCheckBox;

namespace corvina {

class FrmNivel : public JanelaDeFigura {
  public:
    FrmNivel(QWidget* dono, Module1& modulo, Armazem& armazem);

  protected:
    bool tecla(int key) override;

  private:
    void mostra();
    EscolhaDeNivel escolha_;
    std::array<QLabel*, kNiveisDoJogo.size()> marcas_{};
    QCheckBox* justa_ = nullptr;
};

} // namespace corvina

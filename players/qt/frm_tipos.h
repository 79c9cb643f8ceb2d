#pragma once
// frmtipos: the eight card backs; a click chooses one.

#include "core/module1.h"
#include "midia/audio/som.h"
#include "players/qt/janela_de_figura.h"

namespace corvina {

class FrmTipos : public JanelaDeFigura {
  public:
    FrmTipos(QWidget* dono, Module1& modulo, Som* som);

  protected:
    bool tecla(int key) override;

  private:
    void escolhe(int tipo);
    Module1& modulo_;
    Som* som_;
};

} // namespace corvina

#pragma once
// FrmOpc: sound, music and the speed of the card flights.

#include "core/armazem.h"
#include "core/module1.h"
#include "players/qt/janela_de_figura.h"

class QCheckBox;
class QSlider;

namespace corvina {

class FrmOpc : public JanelaDeFigura {
  public:
    FrmOpc(QWidget* dono, Module1& modulo, Armazem& armazem);

  private:
    void ok();
    Module1& modulo_;
    Armazem& armazem_;
    QCheckBox *check1_, *check2_, *check3_;
    QSlider* hscroll1_;
};

} // namespace corvina

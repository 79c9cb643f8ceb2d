#pragma once
// FrmOpc: sound, music, the speed of the card flights, and the size of the table.

#include "core/armazem.h"
#include "core/module1.h"
#include "players/qt/janela_de_figura.h"

class QCheckBox;
class QComboBox;
class QSlider;

namespace corvina {

class FrmOpc : public JanelaDeFigura {
  public:
    FrmOpc(QWidget* dono, Module1& modulo, Armazem& armazem);

  protected:
    bool tecla(int key) override; // Escape is Cancelar

  private:
    void ok();
    Module1& modulo_;
    Armazem& armazem_;
    QCheckBox *check1_, *check2_, *check3_;
    QSlider* hscroll1_;
    QComboBox* tamanho_;
};

} // namespace corvina

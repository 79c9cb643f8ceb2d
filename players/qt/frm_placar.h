#pragma once
// FrmPlacar: the score after a hand; at the end of a match the names and points blink.

#include <QTimer>
#include <functional>

#include "core/module1.h"
#include "core/vista_mesa.h"
#include "players/qt/janela_de_figura.h"

namespace corvina {

class FrmPlacar : public JanelaDeFigura {
  public:
    // `abreEstatisticas`, when given, is offered at the end of a match, beside OK;
    // `abreRevisao`, when given, after every hand.
    FrmPlacar(QWidget* dono, const Module1& modulo, const Placar& placar,
              std::function<void(QWidget*)> abreEstatisticas = {},
              std::function<void(QWidget*)> abreRevisao = {});
    static constexpr int kPiscaMs = 500; // Timer1

  protected:
    void mouseMoveEvent(QMouseEvent* e) override;
    bool tecla(int key) override; // Enter and Escape are OK

  private:
    void pisca();
    QTimer timer1_;
    bool aceso_ = false;
    QLabel *label3_, *label4_, *label5_, *label6_;
    Comando* label8_;
};

} // namespace corvina

#pragma once
// FrmNovoJogador: the name of a new player. A thin window over NovoJogador.

#include <functional>

#include "core/armazem.h"
#include "core/module1.h"
#include "players/novo_jogador.h"
#include "players/qt/janela_de_figura.h"

class QLineEdit;

namespace corvina {

class FrmNovoJogador : public JanelaDeFigura {
  public:
    FrmNovoJogador(QWidget* dono, Module1& modulo, Armazem& armazem,
                   std::function<void(const std::string&)> adicionaNaLista);

  protected:
    void done(int resultado) override;
    bool tecla(int key) override; // Escape is Cancelar

  private:
    void ok();
    NovoJogador novo_;
    QLineEdit* text1_;
};

} // namespace corvina

#pragma once
// FrmNome: who is going to play. A thin window over EscolhaDeJogador.

#include "core/armazem.h"
#include "core/module1.h"
#include "midia/audio/som.h"
#include "players/escolha_de_jogador.h"
#include "players/qt/janela_de_figura.h"

class QCheckBox;
class QComboBox;

namespace corvina {

class FrmNome : public JanelaDeFigura {
  public:
    // `cancelavel`: opened from the toolbar, so its Cancelar works.
    FrmNome(QWidget* dono, Module1& modulo, Armazem& armazem, Historicos& historicos, Som* som,
            bool cancelavel);

  protected:
    void primeiraAtivacao() override;
    bool tecla(int key) override;
    void done(int resultado) override;

  private:
    void mostra(); // the state of the choice on the parts
    void abreNovoJogador();

    Module1& modulo_;
    Armazem& armazem_;
    Som* som_;
    EscolhaDeJogador escolha_;
    bool mostrando_ = false;
    QComboBox* combo1_;
    QCheckBox* check4_;
    QLabel *label10_, *label4_, *label5_, *label7_, *label14_;
    Comando *label16_, *label8_, *label15_;
};

} // namespace corvina

#pragma once
// FrmRecords: the hall of fame, worked out from the store at each opening.

#include <array>

#include "core/armazem.h"
#include "core/module1.h"
#include "midia/audio/som.h"
#include "midia/imagens.h"
#include "players/hall_da_fama.h"
#include "players/historicos.h"
#include "players/qt/janela_de_figura.h"

namespace corvina {

class FrmRecords : public JanelaDeFigura {
  public:
    FrmRecords(QWidget* dono, const Module1& modulo, Armazem& armazem, Historicos& historicos,
               Som* som, const Imagens* imagens = nullptr);

  protected:
    void primeiraAtivacao() override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    bool tecla(int key) override;
    void done(int resultado) override;

  private:
    void monta();
    void zera();
    const Module1& modulo_;
    Armazem& armazem_;
    Historicos& historicos_;
    const Imagens* imagens_;
    Som* som_;
    struct Linha {
        QLabel *nome, *vitorias, *derrotas, *saldo;
    };
    std::array<Linha, kLinhasDoHall> linhas_{};
};

} // namespace corvina

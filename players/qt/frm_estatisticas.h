#pragma once
// FrmEstatisticas: a player's own history, one column per level with Clássico's fair deal
// apart, and a chart of the share won at each level over the last matches, told in words to
// screen readers. Opened from the hall of fame and from the score at the end of a match.

#include <array>
#include <vector>

#include "core/armazem.h"
#include "core/module1.h"
#include "midia/imagens.h"
#include "players/historicos.h"
#include "players/qt/janela_de_figura.h"
#include "players/quadro_de_estatisticas.h"

class QChartView;
class QComboBox;

namespace corvina {

class FrmEstatisticas : public JanelaDeFigura {
  public:
    // Shows the player of the table, or the first of the list.
    // With `imagens`, the player's last matches can be reviewed hand by hand from here.
    FrmEstatisticas(QWidget* dono, const Module1& modulo, Armazem& armazem, Historicos& historicos,
                    const Imagens* imagens = nullptr);

    // What the chart tells a screen reader, as it stands.
    QString resumo() const;

  protected:
    bool tecla(int key) override;

  private:
    void mostra(const std::string& nome);
    Armazem& armazem_;
    Historicos& historicos_;
    QComboBox* jogador_;
    std::vector<std::array<QLabel*, kColunasDoQuadro>> valores_;
    QChartView* grafico_;
    const Imagens* imagens_;
    Comando* revisao_ = nullptr;
    std::vector<RevisaoDePartida> revisoes_; // of the player shown
};

} // namespace corvina

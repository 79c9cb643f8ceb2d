#pragma once
// FrmRevisao, "Revisão da mão": a hand stepped through move by move, both hands face up, the
// pile and the next cards of the stock, and at each of the player's throws the throw Forte makes
// from the same view. The step is the window's accessible description, so a screen reader
// follows the review. Forte thinks on a worker; the window shows the moves meanwhile.

#include <QComboBox>
#include <QTimer>
#include <future>
#include <optional>
#include <vector>

#include "midia/imagens.h"
#include "players/historicos.h"
#include "players/qt/janela_de_figura.h"
#include "players/revisao_da_mao.h"

namespace corvina {

struct MaoParaRever {
    QString rotulo; // "Partida de 25/11/2026 (Forte): mão 3"
    RegistroDaMao registro;
};

// A match's hands, each named by its place and how it ended; `partida` goes before each name.
std::vector<MaoParaRever> maosDaPartida(const std::vector<RegistroDaMao>& maos,
                                        const QString& partida = {});
// The hands of a player's last matches, the newest first.
std::vector<MaoParaRever> maosDasRevisoes(const std::vector<RevisaoDePartida>& revisoes);

class FrmRevisao : public JanelaDeFigura {
  public:
    // Opens on hand `inicial` of `maos`, at its last step.
    FrmRevisao(QWidget* dono, const Imagens& imagens, std::vector<MaoParaRever> maos,
               std::size_t inicial);
    ~FrmRevisao() override;

    // The step shown, 0 the deal; and how many there are.
    std::size_t passo() const { return passo_; }
    std::size_t passos() const;
    // Once Forte's throws are in (tests wait for it).
    bool pronta() const { return !calculo_.valid(); }

  protected:
    bool tecla(int key) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    void escolhe(std::size_t mao);
    void vaiPara(std::size_t passo);
    void recebe();
    void desenhaCartas(QPainter& p, const std::vector<Carta>& cartas, int left, int top, int passo,
                       std::optional<Carta> marcada) const;

    const Imagens& imagens_;
    std::vector<MaoParaRever> maos_;
    std::size_t mao_ = 0, passo_ = 0;
    std::optional<RevisaoDaMao> revisao_;
    std::future<std::optional<RevisaoDaMao>> calculo_;
    QTimer espera_;
    QComboBox* escolha_ = nullptr;
    QLabel *texto_, *resumo_, *contador_;
    Comando *anterior_, *proximo_;
};

} // namespace corvina

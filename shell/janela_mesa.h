#pragma once
// The table window: paints the scene and turns the mouse and the keys into the table's commands.

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "core/jogo.h"
#include "midia/imagens.h"
#include "shell/mesa_acessivel.h"
#include "shell/moldura_da_mesa.h"
#include "shell/vista_qt.h"
#include "table/comandos.h"
#include "table/condutor.h"

namespace corvina {

class JanelaMesa : public QWidget {
  public:
    JanelaMesa(Jogo& jogo, VistaQt& vista, const Imagens& imagens);
    ~JanelaMesa() override;
    JanelaMesa(const JanelaMesa&) = delete;
    JanelaMesa& operator=(const JanelaMesa&) = delete;

    // What ends the program once the window has closed and the settings are written; by
    // default nothing, so that a test can look at the store afterwards.
    void aoEncerrar(std::function<void()> f) { encerra_ = std::move(f); }

    // Where a part of the table stands on the window, in pixels (for tests and the painter).
    QRect retanguloDa(Peca peca) const; // in the window's pixels

    // A move, whatever sent it; false when the table refused it.
    bool joga(const Jogada& c);
    Condutor& condutor() { return condutor_; }
    // The level window (key N, or a click on the level shown), and the hint (key D, or a click).
    void abreNivel();
    void pedeDica();
    // The four-colour deck on or off (key Q, or a click on its line), kept in the settings.
    void trocaBaralhoDeCores();
    // The hint on show, if the table still stands as it was asked on.
    std::optional<Dica> dicaAtual() const { return condutor_.dica(); }

    // The table in words, as accessibility tools read it, and where each part stands.
    std::vector<ItemDaLeitura> leitura() const;
    QRect retanguloDaLeitura(const ItemDaLeitura& item) const;
    AvisoAosLeitores& leitores() { return leitores_; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    bool focusNextPrevChild(bool proxima) override;
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    enum class Alvo {
        Nada,
        Sprite,
        Ordenar,
        Botao,
        Titulo,
        Minimizar,
        Sobre,
        Nivel,
        Dica,
        QuatroCores
    };
    struct Toque {
        Alvo alvo = Alvo::Nada;
        Peca peca{Parte::vazio};
        int botao = 0;
        friend bool operator==(const Toque&, const Toque&) = default;
    };
    Toque tocado(QPoint p) const;
    std::optional<Peca> spriteEm(QPoint p) const;
    QPointF dentroDoMover(QPoint p) const; // twips inside Picmover
    QRect lugarDa(Peca peca) const;        // in the table's pixels
    QPoint naMesa(const QMouseEvent* e) const;
    // The size (percent) the table is drawn at, and full screen.
    void aplicaTamanho(int porcento);
    void alternaTelaCheia();
    void clique(const Toque& t);
    void atende(PedidoDaTecla pedido);
    // The toolbar's windows and a new match wait for the move under way: refused meanwhile.
    bool livreParaJanelas();
    void mudou();

    Jogo& jogo_;
    VistaQt& vista_;
    const Imagens& imagens_;
    Condutor condutor_;
    MolduraDaMesa moldura_;
    QPoint ondeEstava_; // the window's place before the full screen
    Toque pressionado_;
    bool arrastandoMover_ = false;
    bool ativada_ = false;
    std::function<void()> encerra_;
    AvisoAosLeitores leitores_;
};

} // namespace corvina

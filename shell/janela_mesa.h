#pragma once
// The table window: paints the scene and hands the mouse and the keys to the table's handlers.

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "core/jogo.h"
#include "midia/imagens.h"
#include "shell/mesa_acessivel.h"
#include "shell/vista_qt.h"
#include "table/comandos.h"
#include "table/dica.h"

namespace corvina {

class JanelaMesa : public QWidget {
  public:
    JanelaMesa(Jogo& jogo, VistaQt& vista, const Imagens& imagens);

    // What ends the program once the window has closed and the settings are written; by
    // default nothing, so that a test can look at the store afterwards.
    void aoEncerrar(std::function<void()> f) { encerra_ = std::move(f); }

    // Where a part of the table stands on the window, in pixels (for tests and the painter).
    QRect retanguloDa(Peca peca) const;

    // Who answers the hint; without it the hint does nothing.
    void usaNivel(NivelDaMesa& nivel) { nivel_ = &nivel; }
    // The level window (key N, or a click on the level shown), and the hint (key D, or a click).
    void abreNivel();
    void pedeDica();
    // The four-colour deck on or off (key Q, or a click on its line), kept in the settings.
    void trocaBaralhoDeCores();
    // The hint on show, if the table still stands as it was asked on.
    std::optional<Dica> dicaAtual() const;

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
    };
    Toque tocado(QPoint p) const;
    std::optional<Peca> spriteEm(QPoint p) const;
    QPointF dentroDoMover(QPoint p) const; // twips inside Picmover
    void desenhaTextos(QPainter& p);
    void desenhaNivelEDica(QPainter& p);
    void desenhaFoco(QPainter& p);
    std::vector<int16> assinaturaDaMesa() const;
    void clique(const Toque& t);
    void atende(PedidoDaTecla pedido);

    Jogo& jogo_;
    VistaQt& vista_;
    const Imagens& imagens_;
    Toque pressionado_;
    bool arrastandoMover_ = false;
    bool ativada_ = false;
    std::function<void()> encerra_;
    NivelDaMesa* nivel_ = nullptr;
    std::optional<Dica> dica_;
    std::vector<int16> assinaturaDaDica_; // the table the hint was given on
    AvisoAosLeitores leitores_;
};

} // namespace corvina

#pragma once
// What the small windows share: no frame, a picture as their whole surface, texts and
// commands placed in twips, a drag handle, keys seen by the window before its parts.

#include <QDialog>
#include <QLabel>
#include <functional>

namespace corvina {

// A text that acts on a click, with the hand cursor; grey and deaf while disabled. Tab reaches
// it (a dotted frame shows where), Space presses it, and accessibility tools see a button.
class Comando : public QLabel {
  public:
    Comando(const QString& texto, QWidget* pai, std::function<void()> aoClicar);
    void habilita(bool sim);
    // What a click does, when the command is enabled.
    void aciona();
    // The keys brought the focus here (Tab): Enter presses this command, not the window's.
    bool focoDoTeclado() const { return hasFocus() && focoDoTeclado_; }

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    std::function<void()> aoClicar_;
    bool pressionado_ = false;
    bool focoDoTeclado_ = false; // the frame shows only for a focus the keys brought
};

// Lays a window's parts out again at `fator`, around the same centre: their places, their
// fonts and the window's fixed size.
void escalaAJanela(QWidget& janela, double fator);

class JanelaDeFigura : public QDialog {
  public:
    // `figura`: the surface's name ("frmnome"), read for the screen the window is on.
    JanelaDeFigura(QWidget* dono, const char* figura, QSize tamanho);

    // The scale every small window is drawn at: the table's own when the table is drawn large
    // on a screen the desktop left unscaled, so that a window doesn't stand small beside it.
    static void escala(double fator);
    static double escala();
    void setVisible(bool visivel) override;

  protected:
    static QRect emPixels(int left, int top, int width, int height); // from twips
    QLabel* rotulo(const char* nome, const QString& texto, QRect lugar, int px = 12,
                   bool negrito = false, QColor cor = QColor(240, 236, 220),
                   Qt::Alignment alinhamento = Qt::AlignLeft | Qt::AlignVCenter);
    Comando* comando(const char* nome, const QString& texto, QRect lugar,
                     std::function<void()> aoClicar, int px = 12, bool negrito = true);
    // Holding the left button on this part moves the window.
    void alca(QWidget* parte);
    // Keys reach this before any part of the window; true when it was taken.
    virtual bool tecla(int /*key*/) { return false; }
    // Once the parts exist: the keys of each pass through tecla().
    void vigiaTeclas();
    // Runs once per showing, after the window is on the screen: the window is activated again
    // whenever a box over it closes, and only the first activation acts.
    virtual void primeiraAtivacao() {}

    void showEvent(QShowEvent* e) override;
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* e) override;
    bool eventFilter(QObject* alvo, QEvent* e) override;

  private:
    void aplicaEscala(double fator);

    const char* figura_;
    double escalada_ = 1.0; // the scale its parts are laid out at
    QWidget* alca_ = nullptr;
    bool ativada_ = false;
};

} // namespace corvina

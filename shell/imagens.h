#pragma once
// The one place that loads the pictures of the table. A missing file leaves a plain stand-in
// of the right size: the game goes on.

#include <QPixmap>
#include <QString>
#include <array>

#include "table/cena.h"

namespace corvina {

class Imagens {
  public:
    explicit Imagens(const QString& pasta);

    // The picture, and the same cut to the card's outline (the key colour made clear).
    const QPixmap& da(Figura f) const;
    const QPixmap& recortada(Figura f) const;
    const QPixmap& mesa() const { return mesa_; }
    const QPixmap& botaoAceso(int i) const { return botoes_[i - 1]; }
    const QPixmap& splash() const { return splash_; }
    int faltando() const { return faltando_; }

  private:
    QPixmap carrega(const QString& arquivo, QSize tamanho);
    std::array<QPixmap, 120> figuras_, recortadas_;
    std::array<QPixmap, 6> botoes_;
    QPixmap mesa_, splash_, nada_;
    QString pasta_;
    int faltando_ = 0;
};

// The folder of the pictures: beside the program, or where the build found them.
QString pastaDeImagens();
// The sounds and the music lie in a folder of their own there.
QString pastaDosSons();

// Where the key colour stands exactly, clear; anything one shade away stays.
QPixmap recorta(const QPixmap& figura);

} // namespace corvina

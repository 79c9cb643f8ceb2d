#pragma once
// The one place that loads the pictures of the table. A missing or damaged file leaves a
// stand-in of the right size (a card still shows its value and suit), the program says once
// on standard error which files it could not read, and the game goes on.

#include <QPixmap>
#include <QString>
#include <QStringList>
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
    int faltando() const { return static_cast<int>(faltando_.size()); }

  private:
    QPixmap carrega(const QString& arquivo, QSize tamanho, const QString& rotulo = {});
    std::array<QPixmap, 120> figuras_, recortadas_;
    std::array<QPixmap, 6> botoes_;
    QPixmap mesa_, nada_;
    QStringList faltando_;
    QString pasta_;
};

// The folder of the pictures: beside the program, or where the build found them.
QString pastaDeImagens();
// The sounds and the music lie in a folder of their own there.
QString pastaDosSons();

// The splash alone, loaded before anything else.
QPixmap figuraDoSplash();

// Says on standard error, once for each file, which pictures could not be read.
void avisaFigurasFaltando(const QStringList& arquivos);

// Where the key colour stands exactly, clear; anything one shade away stays.
QPixmap recorta(const QPixmap& figura);

} // namespace corvina

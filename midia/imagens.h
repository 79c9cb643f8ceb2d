#pragma once
// The one place that loads the pictures of the table. A missing or damaged file leaves a
// stand-in of the right size (a card still shows its value and suit), the program says once
// on standard error which files it could not read, and the game goes on.

#include <QPixmap>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

#include "table/cena.h"

namespace corvina {

// The pictures come at 1x and at 2x ("name@2x.png"); a screen scaled above 100% gets the 2x set,
// drawn at the same logical size, so that the cards stay sharp.
int escalaDasFiguras(qreal razao);
// The table's own pictures come at 3x too: a table drawn above twice its size (or at 150% on a
// screen scaled to 150%) gets the 3x set.
int escalaDaMesa(qreal razao);
// "cartas/copa1.png" at scale 2 is "cartas/copa1@2x.png".
QString arquivoNaEscala(const QString& arquivo, int escala);

class Imagens {
  public:
    explicit Imagens(const QString& pasta);

    // Chooses the set for the ratio of drawn to logical pixels; a set is read the first time.
    void paraARazao(qreal razao) const;
    // The faces of the four-colour deck (diamonds blue, clubs green), or the usual ones.
    void usaQuatroCores(bool sim) const;
    bool quatroCores() const { return quatroCores_; }

    // The picture, and the same cut to the card's outline (the key colour made clear).
    const QPixmap& da(Figura f) const;
    const QPixmap& recortada(Figura f) const;
    const QPixmap& mesa() const { return conjunto().mesa; }
    const QPixmap& botaoAceso(int i) const { return conjunto().botoes[i - 1]; }
    // The pictures of the 1x set that could not be read.
    int faltando() const { return faltando_; }

  private:
    struct Conjunto {
        std::array<QPixmap, 120> figuras, recortadas;
        std::array<QPixmap, 6> botoes;
        QPixmap mesa;
    };
    // A picture missing at 2x or 3x is the 1x one, enlarged; a four-colour face missing is the
    // usual face; missing at 1x, a stand-in.
    Conjunto carregaConjunto(int escala, bool quatroCores, QStringList& faltando) const;
    static constexpr int kEscalas = 3;
    static std::size_t indice(int escala, bool quatroCores) {
        return static_cast<std::size_t>(escala - 1 + (quatroCores ? kEscalas : 0));
    }
    const Conjunto& conjunto() const;
    mutable std::array<std::optional<Conjunto>, 2 * kEscalas> conjuntos_; // by scale, then deck
    mutable int escala_ = 1;
    mutable bool quatroCores_ = false;
    QPixmap nada_;
    int faltando_ = 0;
    QString pasta_;
};

// The folder of the pictures: beside the program, or where the build found them.
QString pastaDeImagens();
// The sounds and the music lie in a folder of their own there.
QString pastaDosSons();

// The splash alone, loaded before anything else, for the screen's device pixel ratio.
QPixmap figuraDoSplash(qreal razao = 1);

// Says on standard error, once for each file, which pictures could not be read.
void avisaFigurasFaltando(const QStringList& arquivos);

// Where the key colour stands exactly, clear; anything one shade away stays.
QPixmap recorta(const QPixmap& figura);

} // namespace corvina

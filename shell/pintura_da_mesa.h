#pragma once
// The table window's picture: the felt, the lit button, the texts beside the pile under the
// cards, the cards back to front, then the labels, the hint's ring and the keys' focus.

#include <QPainter>
#include <QRect>
#include <optional>

#include "core/jogo.h"
#include "midia/imagens.h"
#include "table/cena.h"
#include "table/dica.h"

namespace corvina {

// Where a sprite stands on the window, in pixels.
QRect retanguloDaPeca(const Cena& cena, Peca peca);

struct QuadroDaMesa {
    const Jogo& jogo;
    const Cena& cena;
    const Imagens& imagens;
    std::optional<Dica> dica; // the hint on show
};

void pintaMesa(QPainter& p, const QuadroDaMesa& q);

} // namespace corvina

#include "shell/pintura_da_mesa.h"

#include <QFontMetrics>
#include <cmath>

#include "core/pecas.h"
#include "players/escolha_de_nivel.h"
#include "shell/lugares_da_mesa.h"

namespace corvina {

namespace {
inline constexpr int kLetra = 12, kLetraDoPlacar = 26;
inline constexpr int kMenorLetraDaDica = 10; // still read at a glance

int px(float twips) {
    return static_cast<int>(std::floor(twips / kTwipsPorPixel));
}

QFont fonte(int tamanho, bool negrito = false) {
    QFont f("DejaVu Sans");
    f.setPixelSize(tamanho);
    f.setBold(negrito);
    return f;
}

// The lines beside the pile lie on the felt: a card dragged or flying over them covers them.
void pintaNivelEDica(QPainter& p, const QuadroDaMesa& q) {
    const Module1& g = q.jogo.modulo;
    p.setFont(fonte(kLetra, true));
    p.setPen(lugar::kOuroDaDica);
    const QRect linha1(lugar::kNivel.x(), lugar::kNivel.y(), lugar::kNivel.width(),
                       lugar::kNivel.height() / 2);
    p.drawText(linha1, Qt::AlignLeft | Qt::AlignVCenter,
               QString::fromStdString(legendaDoNivel(g.nivel)));
    QFont f = fonte(kLetra);
    p.setFont(f);
    p.setPen(lugar::kTextoClaro);
    p.drawText(linha1.translated(0, linha1.height()), Qt::AlignLeft | Qt::AlignVCenter,
               QString::fromStdString(legendaDaDistribuicao(g.nivel, g.distribuicaoJusta)));
    f.setUnderline(true);
    p.setFont(f);
    p.drawText(lugar::kDica, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Dica (D)"));
    p.drawText(lugar::kQuatroCores, Qt::AlignLeft | Qt::AlignVCenter,
               QString(q.imagens.quatroCores() ? QChar(0x2611) : QChar(0x2610)) +
                   QStringLiteral(" Baralho de quatro cores (Q)"));
}

// The cards in the air: the one the mouse holds and the one in flight.
bool noAr(Peca peca) {
    return peca == peca::kPicmover || peca == peca::kDiscartado2;
}

// The sprites on the table, or those in the air, back to front.
void pintaCartas(QPainter& p, const QuadroDaMesa& q, bool osNoAr) {
    p.save();
    p.setClipRect(QRect(lugar::kPainel, lugar::kTamanhoDoPainel));
    for (const Peca peca : q.cena.ordem()) {
        const Sprite& s = q.cena[peca];
        if (!s.Visible || s.Picture == kSemFigura || noAr(peca) != osNoAr) continue;
        // Cards over cards show what lies below at their corners.
        const QPixmap& figura = s.contorno || peca == peca::kPicmover
                                    ? q.imagens.recortada(s.Picture)
                                    : q.imagens.da(s.Picture);
        p.drawPixmap(retanguloDaPeca(q.cena, peca).topLeft(), figura);
    }
    p.restore();
}

// The texts of the window's bottom strip, outside the panel the cards keep to.
void pintaTextosDaJanela(QPainter& p, const QuadroDaMesa& q) {
    const Textos& t = q.cena.textos;
    p.save();
    p.setFont(fonte(kLetra));
    p.setPen(lugar::kTextoClaro);
    p.drawText(lugar::kLabel1, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(t.prompt));
    if (t.imgNTrincasVisivel) p.fillRect(lugar::kImgNTrincas, lugar::kBarra);
    if (t.statusVisivel) {
        p.setPen(lugar::kOuroDaDica);
        p.drawText(lugar::kStatus, Qt::AlignCenter, QString::fromStdString(t.status));
    }
    if (q.cena[peca::kLabel4].Visible) {
        p.setPen(QColor(240, 240, 240));
        p.setFont(fonte(kLetra, true));
        p.drawText(lugar::kLabel4, Qt::AlignCenter, QString::fromStdString(t.label4));
    }
    p.restore();
}

// The panel's texts lie on the felt, as the lines beside the pile: a card covers them.
void pintaTextosDoPainel(QPainter& p, const QuadroDaMesa& q) {
    const Textos& t = q.cena.textos;
    p.save();
    p.translate(lugar::kPainel);
    if (t.avisoVisivel) {
        p.setFont(fonte(kLetra, true));
        p.setPen(QColor(255, 236, 120));
        p.drawText(lugar::kLabel6, Qt::AlignCenter, QString::fromStdString(t.aviso));
    } else if (q.dica) {
        // The advice takes the warning's line when it is free; long card names and their
        // chances are set a size smaller rather than run past it.
        const QString texto = QString::fromStdString(q.dica->texto);
        int tamanho = kLetra;
        while (tamanho > kMenorLetraDaDica &&
               QFontMetrics(fonte(tamanho, true)).horizontalAdvance(texto) > lugar::kLabel6.width())
            --tamanho;
        p.setFont(fonte(tamanho, true));
        p.setPen(lugar::kOuroDaDica);
        p.drawText(lugar::kLabel6, Qt::AlignCenter, texto);
    }
    p.setFont(fonte(kLetraDoPlacar, true));
    p.setPen(QColor(250, 250, 240));
    if (q.cena[peca::kPlacar1].Visible)
        p.drawText(lugar::kPlacar1, Qt::AlignCenter, QString::fromStdString(t.placar1));
    if (q.cena[peca::kPlacar2].Visible)
        p.drawText(lugar::kPlacar2, Qt::AlignCenter, QString::fromStdString(t.placar2));
    if (q.jogo.mesa.mostraContagem) {
        p.setFont(fonte(kLetra));
        p.setPen(QColor(255, 255, 255));
        p.drawText(lugar::kLabel10, Qt::AlignCenter, QString::fromStdString(t.label10));
        p.drawText(lugar::kLabel11, Qt::AlignCenter, QString::fromStdString(t.label11));
    }
    p.restore();
}

// The part to play ringed in gold, over its neighbours; a card in the air passes over it.
void pintaAnelDaDica(QPainter& p, const QuadroDaMesa& q) {
    if (!q.dica) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(lugar::kOuroDaDica, 3));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(
        QRectF(retanguloDaPeca(q.cena, q.dica->peca())).adjusted(-2.5, -2.5, 2.5, 2.5), 6, 6);
    p.restore();
}

void pintaFoco(QPainter& p, const QuadroDaMesa& q) {
    const int16 foco = q.cena.foco;
    if (foco < 1 || foco > q.jogo.mesa.qtdJog || !q.cena[peca::cj(foco)].Visible) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(lugar::kCorDoFoco, 2, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(retanguloDaPeca(q.cena, peca::cj(foco))).adjusted(-3, -3, 3, 3), 6, 6);
    p.restore();
}
} // namespace

QRect retanguloDaPeca(const Cena& cena, Peca peca) {
    const Sprite& s = cena[peca];
    return QRect(lugar::kPainel.x() + px(s.Left), lugar::kPainel.y() + px(s.Top), px(s.Width),
                 px(s.Height));
}

void pintaMesa(QPainter& p, const QuadroDaMesa& q) {
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawPixmap(0, 0, q.imagens.mesa());
    const int aceso = q.cena.gesto.botaoAtivo;
    if (aceso >= 1 && aceso <= lugar::kBotoesAcesos)
        p.drawPixmap(lugar::kBotoes[aceso - 1].topLeft(), q.imagens.botaoAceso(aceso));
    pintaNivelEDica(p, q);
    pintaTextosDoPainel(p, q);
    pintaCartas(p, q, false);
    pintaAnelDaDica(p, q);
    pintaFoco(p, q);
    pintaCartas(p, q, true);
    pintaTextosDaJanela(p, q);
}

} // namespace corvina

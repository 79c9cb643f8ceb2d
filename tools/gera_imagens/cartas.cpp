// The cards: the 52 faces (in two or four colours) and the 8 backs, drawn at 71 by 96 logical
// pixels for the scale in use.

#include "cartas.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

#include "core/carta.h"
#include "janelas.h"

namespace corvina::gera {

const QColor kMesa(21, 130, 64); // the key colour: the table, and the corners of every card
const char* const kNaipes[] = {"coracao", "copa", "espada", "ramo"};
bool gQuatroCores = false;

const QColor kVermelho(196, 32, 48);
const QColor kPreto(24, 24, 28);
const QColor kPapel(252, 250, 244);
constexpr int kLargura = 71, kAltura = 96;

QString fonte() {
    return QStringLiteral("DejaVu Sans");
}

// Suit shapes in a box of 1 by 1, centred on the origin.
QPainterPath coracao() {
    QPainterPath p;
    p.moveTo(0, 0.45);
    p.cubicTo(-0.15, 0.3, -0.5, 0.05, -0.5, -0.2);
    p.cubicTo(-0.5, -0.45, -0.2, -0.55, 0, -0.3);
    p.cubicTo(0.2, -0.55, 0.5, -0.45, 0.5, -0.2);
    p.cubicTo(0.5, 0.05, 0.15, 0.3, 0, 0.45);
    return p;
}
QPainterPath ouros() {
    QPainterPath p;
    p.moveTo(0, -0.5);
    p.quadTo(0.15, -0.2, 0.4, 0);
    p.quadTo(0.15, 0.2, 0, 0.5);
    p.quadTo(-0.15, 0.2, -0.4, 0);
    p.quadTo(-0.15, -0.2, 0, -0.5);
    return p;
}
QPainterPath espadas() {
    QPainterPath p;
    p.moveTo(0, -0.5);
    p.cubicTo(0.15, -0.3, 0.5, -0.1, 0.5, 0.13);
    p.cubicTo(0.5, 0.35, 0.2, 0.42, 0.04, 0.22);
    p.quadTo(0.06, 0.4, 0.18, 0.5);
    p.lineTo(-0.18, 0.5);
    p.quadTo(-0.06, 0.4, -0.04, 0.22);
    p.cubicTo(-0.2, 0.42, -0.5, 0.35, -0.5, 0.13);
    p.cubicTo(-0.5, -0.1, -0.15, -0.3, 0, -0.5);
    return p;
}
QPainterPath paus() {
    QPainterPath p;
    p.addEllipse(QPointF(0, -0.24), 0.22, 0.22);
    p.addEllipse(QPointF(-0.25, 0.08), 0.22, 0.22);
    p.addEllipse(QPointF(0.25, 0.08), 0.22, 0.22);
    QPainterPath haste;
    haste.moveTo(-0.05, 0.05);
    haste.quadTo(-0.04, 0.38, -0.18, 0.5);
    haste.lineTo(0.18, 0.5);
    haste.quadTo(0.04, 0.38, 0.05, 0.05);
    haste.closeSubpath();
    return p.united(haste);
}

// naipe 1 hearts, 2 clubs, 3 diamonds, 4 spades.
QPainterPath formaDoNaipe(int naipe) {
    switch (naipe) {
    case 1:
        return coracao();
    case 2:
        return paus();
    case 3:
        return ouros();
    default:
        return espadas();
    }
}
// The four-colour deck gives diamonds and clubs colours of their own, for players who confuse
// red and black at a glance: hearts red, diamonds blue, clubs green, spades black.
const QColor kAzul(28, 86, 196);
const QColor kVerde(16, 120, 52);

QColor corDoNaipe(int naipe) {
    if (gQuatroCores && naipe == 3) return kAzul;
    if (gQuatroCores && naipe == 2) return kVerde;
    return naipe == 1 || naipe == 3 ? kVermelho : kPreto;
}

void desenhaNaipe(QPainter& p, int naipe, QPointF centro, double tamanho, bool invertido,
                  QColor cor) {
    p.save();
    p.translate(centro);
    if (invertido) p.rotate(180);
    p.scale(tamanho, tamanho);
    p.setPen(Qt::NoPen);
    p.setBrush(cor.isValid() ? cor : corDoNaipe(naipe));
    p.drawPath(formaDoNaipe(naipe));
    p.restore();
}

// The blank card: paper with rounded corners over the key colour, so the table shows there.
QImage cartaEmBranco(const QColor& papel = kPapel) {
    QImage img = novaImagem({kLargura, kAltura});
    img.fill(kMesa);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(QColor(120, 120, 120), 1));
    p.setBrush(papel);
    p.drawRoundedRect(QRectF(0.5, 0.5, kLargura - 1, kAltura - 1), 5, 5);
    return img;
}

void desenhaIndice(QPainter& p, int naipe, int valor) {
    for (int canto = 0; canto < 2; ++canto) {
        p.save();
        if (canto == 1) {
            p.translate(kLargura, kAltura);
            p.rotate(180);
        }
        QFont f(fonte(), valor == 10 ? 9 : 10, QFont::Bold);
        f.setPixelSize(valor == 10 ? 11 : 13);
        if (valor == 10) f.setLetterSpacing(QFont::AbsoluteSpacing, -1);
        p.setFont(f);
        p.setPen(corDoNaipe(naipe));
        p.drawText(QRectF(1, 2, 15, 14), Qt::AlignHCenter | Qt::AlignTop,
                   QString(corvina::nomeDoValor(valor)));
        desenhaNaipe(p, naipe, QPointF(8.5, 21), 9);
        p.restore();
    }
}

// Pip positions in the inner field, columns at x 23/35.5/48, rows from 14 to 82.
void desenhaPintas(QPainter& p, int naipe, int valor) {
    const double e = 24, c = 35.5, d = 47;
    const double t = 17, b = 79, m = 48;
    struct Pinta {
        double x, y;
    };
    std::vector<Pinta> pintas;
    const auto col = [&](double x, std::initializer_list<double> ys) {
        for (double y : ys) pintas.push_back({x, y});
    };
    switch (valor) {
    case 2:
        col(c, {t, b});
        break;
    case 3:
        col(c, {t, m, b});
        break;
    case 4:
        col(e, {t, b}), col(d, {t, b});
        break;
    case 5:
        col(e, {t, b}), col(d, {t, b}), col(c, {m});
        break;
    case 6:
        col(e, {t, m, b}), col(d, {t, m, b});
        break;
    case 7:
        col(e, {t, m, b}), col(d, {t, m, b}), col(c, {(t + m) / 2});
        break;
    case 8:
        col(e, {t, m, b}), col(d, {t, m, b}), col(c, {(t + m) / 2, (m + b) / 2});
        break;
    case 9:
        col(e, {t, t + 20.7, b - 20.7, b}), col(d, {t, t + 20.7, b - 20.7, b}), col(c, {m});
        break;
    case 10:
        col(e, {t, t + 20.7, b - 20.7, b}), col(d, {t, t + 20.7, b - 20.7, b});
        col(c, {t + 10, b - 10});
        break;
    default:
        break;
    }
    for (const Pinta& pt : pintas) desenhaNaipe(p, naipe, QPointF(pt.x, pt.y), 13, pt.y > m + 1);
}

void desenhaFigura(QPainter& p, int naipe, int valor) {
    const QRectF quadro(15, 13, 41, 70);
    QLinearGradient fundo(quadro.topLeft(), quadro.bottomRight());
    fundo.setColorAt(0, QColor(250, 236, 196));
    fundo.setColorAt(1, QColor(236, 210, 150));
    p.setPen(QPen(corDoNaipe(naipe), 1.2));
    p.setBrush(fundo);
    p.drawRoundedRect(quadro, 3, 3);
    // A crown for the king and the queen, a plume for the jack.
    p.setPen(QPen(QColor(150, 110, 30), 1));
    p.setBrush(QColor(230, 180, 40));
    QPainterPath coroa;
    const double cx = quadro.center().x(), topo = quadro.top() + 7;
    if (valor == 11) {
        coroa.moveTo(cx - 9, topo + 8);
        coroa.quadTo(cx - 2, topo - 6, cx + 10, topo);
        coroa.quadTo(cx + 2, topo + 2, cx + 9, topo + 8);
        coroa.closeSubpath();
    } else {
        const int pontas = valor == 13 ? 3 : 2;
        coroa.moveTo(cx - 10, topo + 9);
        for (int i = 0; i <= pontas * 2; ++i) {
            const double x = cx - 10 + 20.0 * i / (pontas * 2);
            coroa.lineTo(x, i % 2 == 0 ? topo : topo + 5);
        }
        coroa.lineTo(cx + 10, topo + 9);
        coroa.closeSubpath();
    }
    p.drawPath(coroa);
    QFont f(fonte());
    f.setPixelSize(26);
    f.setBold(true);
    p.setFont(f);
    p.setPen(corDoNaipe(naipe));
    p.drawText(QRectF(quadro.left(), quadro.top() + 16, quadro.width(), 28), Qt::AlignCenter,
               QString(corvina::nomeDoValor(valor)));
    desenhaNaipe(p, naipe, QPointF(cx, quadro.bottom() - 15), 17);
}

QImage face(int naipe, int valor) {
    QImage img = cartaEmBranco();
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    desenhaIndice(p, naipe, valor);
    if (valor == 1) {
        desenhaNaipe(p, naipe, QPointF(35.5, 48), naipe == 4 ? 34 : 28);
    } else if (valor > 10) {
        desenhaFigura(p, naipe, valor);
    } else {
        desenhaPintas(p, naipe, valor);
    }
    return img;
}

// Eight backs: a pattern of its own in a colour of its own, a white rim and an emblem.
QImage verso(int tipo) {
    const QColor cores[] = {QColor(30, 70, 160),  QColor(170, 30, 40),  QColor(20, 90, 60),
                            QColor(100, 40, 130), QColor(200, 110, 20), QColor(20, 120, 130),
                            QColor(110, 70, 40),  QColor(40, 40, 50)};
    const QColor cor = cores[tipo - 1];
    QImage img = cartaEmBranco(QColor(250, 250, 250));
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    const QRectF campo(5, 5, kLargura - 10, kAltura - 10);
    QPainterPath recorte;
    recorte.addRoundedRect(campo, 3, 3);
    p.setClipPath(recorte);
    p.fillRect(campo, cor);
    const QColor claro = cor.lighter(150);
    p.setPen(QPen(claro, 1.2));
    p.setBrush(Qt::NoBrush);
    switch (tipo) {
    case 1:
        for (int i = -100; i < 100; i += 6) p.drawLine(QPointF(i, 0), QPointF(i + 96, 96));
        for (int i = -100; i < 100; i += 6) p.drawLine(QPointF(i + 96, 0), QPointF(i, 96));
        break;
    case 2:
        for (int y = 8; y < 96; y += 10)
            for (int x = 8 + (y / 10 % 2) * 5; x < 71; x += 10)
                p.drawEllipse(QPointF(x, y), 2.5, 2.5);
        break;
    case 3:
        for (int y = 5; y < 96; y += 8) {
            QPainterPath onda;
            onda.moveTo(0, y);
            for (int x = 0; x < 71; x += 8) onda.quadTo(x + 4, y - 4, x + 8, y);
            p.drawPath(onda);
        }
        break;
    case 4:
        for (int y = 5; y < 96; y += 12)
            for (int x = 5; x < 71; x += 12) {
                QPolygonF losango{{double(x), y - 5.0},
                                  {x + 5.0, double(y)},
                                  {double(x), y + 5.0},
                                  {x - 5.0, double(y)}};
                p.drawPolygon(losango);
            }
        break;
    case 5:
        for (int x = 5; x < 71; x += 6) p.drawLine(QPointF(x, 0), QPointF(x, 96));
        break;
    case 6:
        for (int r = 4; r < 60; r += 6) p.drawEllipse(QPointF(35.5, 48), r, r);
        break;
    case 7:
        for (int y = 5; y < 96; y += 8)
            for (int x = 5; x < 71; x += 8)
                if ((x / 8 + y / 8) % 2 == 0) p.fillRect(QRectF(x, y, 8, 8), cor.darker(130));
        break;
    default:
        for (int i = 0; i < 12; ++i)
            p.drawRoundedRect(campo.adjusted(3 * i, 3 * i, -3 * i, -3 * i), 3, 3);
        break;
    }
    p.setClipping(false);
    p.setPen(QPen(QColor(250, 250, 250), 1.5));
    p.setBrush(cor.darker(120));
    p.drawEllipse(QPointF(35.5, 48), 13, 13);
    QFont f(fonte());
    f.setPixelSize(16);
    f.setBold(true);
    p.setFont(f);
    p.setPen(QColor(250, 250, 250));
    p.drawText(QRectF(22, 35, 27, 26), Qt::AlignCenter, "C");
    return img;
}
} // namespace corvina::gera

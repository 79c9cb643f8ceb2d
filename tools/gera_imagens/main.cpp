// Draws every picture of Corvina: 52 faces and 8 backs of 71 by 96 pixels, the 800 by 600
// table with its toolbar words, the six lit buttons, the 500 by 160 splash, and the surfaces
// of the small windows; each at 1x and at 2x ("name@2x.png") for scaled screens. The faces
// come again in four colours under cartas4/.
// Usage: corvina-gera-imagens <assets folder>. Its output is committed under assets/.

#include <QColor>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>
#include <cmath>
#include <cstdio>

#include "core/carta.h"
#include "janelas.h"

namespace {

const QColor kMesa(21, 130, 64); // the key colour: the table, and the corners of every card
const QColor kVermelho(196, 32, 48);
const QColor kPreto(24, 24, 28);
const QColor kPapel(252, 250, 244);
constexpr int kLargura = 71, kAltura = 96;
const char* const kNaipes[] = {"coracao", "copa", "espada", "ramo"};

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
bool gQuatroCores = false;

QColor corDoNaipe(int naipe) {
    if (gQuatroCores && naipe == 3) return kAzul;
    if (gQuatroCores && naipe == 2) return kVerde;
    return naipe == 1 || naipe == 3 ? kVermelho : kPreto;
}

void desenhaNaipe(QPainter& p, int naipe, QPointF centro, double tamanho, bool invertido = false,
                  QColor cor = QColor()) {
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

// The toolbar, in pixels: the words are part of the pictures.
struct Botao {
    QRect area;
    const char* palavra;
};
const Botao kBotoes[] = {{{21, 80, 126, 30}, "NOVO"},      {{154, 80, 121, 30}, "OPÇÕES"},
                         {{282, 80, 121, 30}, "RECORDES"}, {{409, 80, 122, 30}, "CARTAS"},
                         {{537, 80, 118, 30}, "AJUDA"},    {{661, 80, 118, 30}, "SAIR"}};

void desenhaBotao(QPainter& p, QRect area, const QString& palavra, bool aceso) {
    QLinearGradient g(area.topLeft(), area.bottomLeft());
    g.setColorAt(0, aceso ? QColor(250, 214, 90) : QColor(60, 60, 66));
    g.setColorAt(1, aceso ? QColor(214, 150, 30) : QColor(36, 36, 40));
    p.setPen(QPen(aceso ? QColor(255, 240, 180) : QColor(90, 90, 96), 1));
    p.setBrush(g);
    p.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    QFont f(fonte());
    f.setPixelSize(13);
    f.setBold(true);
    p.setFont(f);
    p.setPen(aceso ? QColor(40, 30, 10) : QColor(235, 235, 235));
    p.drawText(area, Qt::AlignCenter, palavra);
}

// The game's name in gold, with a soft shadow.
void escreveNome(QPainter& p, QRect area, int tamanho) {
    QFont f(fonte());
    f.setPixelSize(tamanho);
    f.setBold(true);
    f.setLetterSpacing(QFont::AbsoluteSpacing, tamanho / 13);
    p.setFont(f);
    p.setPen(QColor(0, 0, 0, 115));
    p.drawText(area.translated(3, 3), Qt::AlignLeft | Qt::AlignVCenter, "Corvina");
    p.setPen(QColor(245, 227, 162));
    p.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, "Corvina");
}

QImage mesa() {
    QImage img = novaImagem({800, 600});
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    QLinearGradient madeira(0, 0, 0, 600);
    madeira.setColorAt(0, QColor(70, 44, 28));
    madeira.setColorAt(1, QColor(40, 24, 14));
    p.fillRect(QRectF(QPointF(0, 0), img.deviceIndependentSize()), madeira);
    // Title strip with the name, and the about, minimise and close squares at its right.
    QLinearGradient titulo(0, 0, 0, 73);
    titulo.setColorAt(0, QColor(24, 60, 40));
    titulo.setColorAt(1, QColor(10, 34, 22));
    p.fillRect(QRect(0, 0, 800, 73), titulo);
    escreveNome(p, QRect(20, 10, 400, 50), 40);
    desenhaNaipe(p, 1, QPointF(232, 30), 16, false, QColor(236, 80, 90));
    desenhaNaipe(p, 2, QPointF(252, 30), 16, false, QColor(236, 236, 236));
    desenhaNaipe(p, 3, QPointF(272, 30), 16, false, QColor(236, 80, 90));
    desenhaNaipe(p, 4, QPointF(292, 30), 16, false, QColor(236, 236, 236));
    const auto quadrado = [&](QRect r, const QString& sinal) {
        p.setPen(QPen(QColor(200, 200, 200), 1));
        p.setBrush(QColor(50, 80, 60));
        p.drawRoundedRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        QFont s(fonte());
        s.setPixelSize(18);
        s.setBold(true);
        p.setFont(s);
        p.setPen(QColor(240, 240, 240));
        p.drawText(r, Qt::AlignCenter, sinal);
    };
    quadrado(QRect(679, 25, 24, 31), "?");
    quadrado(QRect(709, 23, 33, 32), "–");
    quadrado(QRect(749, 23, 31, 31), "×");
    for (const Botao& b : kBotoes) desenhaBotao(p, b.area, QString::fromUtf8(b.palavra), false);
    // The felt of the table panel, and the status bar below it.
    p.fillRect(QRect(21, 123, 753, 427), kMesa);
    p.setPen(QPen(QColor(20, 14, 8), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRect(20, 122, 755, 429));
    p.setPen(QPen(QColor(120, 90, 60), 1));
    p.setBrush(QColor(30, 20, 12));
    p.drawRoundedRect(QRectF(28, 558, 744, 28), 4, 4);
    p.setPen(QColor(120, 90, 60));
    p.drawLine(QPointF(571, 560), QPointF(571, 584));
    p.drawLine(QPointF(677, 560), QPointF(677, 584));
    return img;
}

QImage botaoAceso(int i) {
    const Botao& b = kBotoes[i - 1];
    QImage img = novaImagem(b.area.size());
    img.fill(QColor(40, 24, 14));
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    desenhaBotao(p, QRect(QPoint(0, 0), b.area.size()), QString::fromUtf8(b.palavra), true);
    return img;
}

QImage splash() {
    QImage img = novaImagem({500, 160});
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    QRadialGradient g(QPointF(250, 60), 320);
    g.setColorAt(0, QColor(30, 140, 72));
    g.setColorAt(1, QColor(8, 50, 26));
    p.fillRect(QRectF(QPointF(0, 0), img.deviceIndependentSize()), g);
    p.setPen(QPen(QColor(230, 200, 120), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(3, 3, 494, 154));
    // A small fan of three cards.
    const QImage cartas[] = {face(1, 12), face(4, 13), face(3, 1)};
    for (int i = 0; i < 3; ++i) {
        p.save();
        p.translate(95, 130);
        p.rotate(-18 + 18 * i);
        p.drawImage(QPointF(-35, -110), semCantos(cartas[i]));
        p.restore();
    }
    escreveNome(p, QRect(190, 35, 300, 70), 54);
    QFont s(fonte());
    s.setPixelSize(14);
    p.setFont(s);
    p.setPen(QColor(220, 236, 220));
    p.drawText(QRect(192, 100, 300, 24), Qt::AlignLeft | Qt::AlignVCenter,
               QString::fromUtf8("três trincas vencem a mão"));
    return img;
}

bool grava(const QImage& img, const QString& caminho) {
    if (img.save(caminho)) return true;
    std::fprintf(stderr, "could not write %s\n", qPrintable(caminho));
    return false;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: corvina-gera-imagens <assets folder>\n");
        return 2;
    }
    const QDir pasta(QString::fromLocal8Bit(argv[1]));
    QDir().mkpath(pasta.filePath("cartas"));
    QDir().mkpath(pasta.filePath("cartas4"));
    QDir().mkpath(pasta.filePath("janelas"));
    bool ok = true;
    // Each picture at 1x, and at 2x with Qt's "@2x" name beside it.
    for (const int escala : {1, 2}) {
        usaEscala(escala);
        const QString sufixo = escala == 1 ? QString() : QString("@%1x").arg(escala);
        const auto arquivo = [&](const QString& nome) {
            return pasta.filePath(nome + sufixo + ".png");
        };
        for (int n = 1; n <= 4; ++n)
            for (int v = 1; v <= 13; ++v)
                ok &= grava(face(n, v), arquivo(QString("cartas/%1%2").arg(kNaipes[n - 1]).arg(v)));
        for (int t = 1; t <= 8; ++t)
            ok &= grava(verso(t), arquivo(QString("cartas/tipotC%1").arg(t)));
        // The faces of the four-colour deck, beside the others; the backs are the same.
        gQuatroCores = true;
        for (int n = 1; n <= 4; ++n)
            for (int v = 1; v <= 13; ++v)
                ok &=
                    grava(face(n, v), arquivo(QString("cartas4/%1%2").arg(kNaipes[n - 1]).arg(v)));
        gQuatroCores = false;
        ok &= grava(mesa(), arquivo("mesa"));
        for (int i = 1; i <= 6; ++i) ok &= grava(botaoAceso(i), arquivo(QString("btn2_%1").arg(i)));
        ok &= grava(splash(), arquivo("splash"));
        std::array<QImage, 8> versos;
        for (int t = 1; t <= 8; ++t) versos[t - 1] = verso(t);
        const struct {
            const char* nome;
            QImage figura;
        } janelas[] = {
            {"frmnome", janelaNome()},         {"frmnovojogador", janelaNovoJogador()},
            {"frmrecords", janelaRecords()},   {"frmopc", janelaOpcoes()},
            {"frmtipos", janelaTipos(versos)}, {"frmsimnao", janelaSimNao()},
            {"frmplacar", janelaPlacar()},     {"frmsobre", janelaSobre(versos[3])},
            {"frmnivel", janelaNivel()},       {"frmestatisticas", janelaEstatisticas()},
        };
        for (const auto& j : janelas)
            ok &= grava(j.figura, arquivo(QString("janelas/%1").arg(j.nome)));
    }
    usaEscala(1);
    std::array<QImage, 8> versos;
    for (int t = 1; t <= 8; ++t) versos[t - 1] = verso(t);
    // The icon at the sizes the desktop's icon theme asks for; installed apart from the data.
    QDir().mkpath(pasta.filePath("icones"));
    for (const int lado : {16, 24, 32, 48, 64, 128, 256})
        ok &= grava(icone(lado, versos[3], face(1, 1)),
                    pasta.filePath(QString("icones/%1.png").arg(lado)));
    return ok ? 0 : 1;
}

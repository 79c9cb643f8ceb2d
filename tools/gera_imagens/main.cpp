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

#include "cartas.h"
#include "core/carta.h"
#include "janelas.h"

namespace {

using corvina::gera::desenhaNaipe;
using corvina::gera::face;
using corvina::gera::fonte;
using corvina::gera::gQuatroCores;
using corvina::gera::kMesa;
using corvina::gera::kNaipes;
using corvina::gera::verso;

// The small windows and the splash stay at their size when the table grows: 2x is for screens.
constexpr int kEscalaDasJanelas = 2;

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
    // Each picture at 1x, and at 2x with Qt's "@2x" name beside it; the table's own pictures
    // (cards, backs, felt, lit buttons) at 3x too, for the largest table sizes.
    for (const int escala : {1, 2, 3}) {
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
        if (escala > kEscalaDasJanelas) continue;
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
            {"frmrevisao", janelaRevisao()},
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

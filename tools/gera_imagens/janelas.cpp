#include "janelas.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace {
int gEscala = 1;
} // namespace

void usaEscala(int escala) {
    gEscala = escala;
}

QImage novaImagem(QSize logico, QImage::Format formato) {
    // Painted in logical pixels: the painter scales to the image's pixel ratio.
    QImage img(logico * gEscala, formato);
    img.setDevicePixelRatio(gEscala);
    return img;
}

namespace {

const QColor kOuro(214, 180, 92);
const QColor kFeltro1(24, 92, 52), kFeltro2(12, 60, 34);

QFont fonte(int px, bool negrito = false) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(px);
    f.setBold(negrito);
    return f;
}

// Wood all round, the felt inside, a gold line between; a darker strip on top when the window
// has a heading.
QImage fundo(QSize tamanho, int faixa = 0) {
    QImage img = novaImagem(tamanho);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    QLinearGradient madeira(0, 0, 0, tamanho.height());
    madeira.setColorAt(0, QColor(84, 54, 32));
    madeira.setColorAt(1, QColor(44, 26, 14));
    p.fillRect(QRectF(QPointF(0, 0), img.deviceIndependentSize()), madeira);
    const QRectF feltro =
        QRectF(QPointF(0, 0), img.deviceIndependentSize()).adjusted(5, 5 + faixa, -5, -5);
    QLinearGradient verde(feltro.topLeft(), feltro.bottomLeft());
    verde.setColorAt(0, kFeltro1);
    verde.setColorAt(1, kFeltro2);
    p.setPen(QPen(kOuro, 1));
    p.setBrush(verde);
    p.drawRoundedRect(feltro.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    p.setPen(QPen(QColor(0, 0, 0, 120), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(QPointF(0, 0), img.deviceIndependentSize()).adjusted(0.5, 0.5, -0.5, -0.5));
    return img;
}

// A sunken box on the felt, for fields and tables.
void caixa(QPainter& p, QRectF r) {
    p.setPen(QPen(QColor(0, 0, 0, 90), 1));
    p.setBrush(QColor(0, 0, 0, 50));
    p.drawRoundedRect(r.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

// A drawn button with its word, as the hall of fame has them.
void botao(QPainter& p, QRect r, const QString& palavra) {
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, QColor(74, 74, 80));
    g.setColorAt(1, QColor(38, 38, 42));
    p.setPen(QPen(kOuro, 1));
    p.setBrush(g);
    p.drawRoundedRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    p.setFont(fonte(12, true));
    p.setPen(QColor(240, 236, 220));
    p.drawText(r, Qt::AlignCenter, palavra);
}

void titulo(QPainter& p, QRect r, const QString& texto, int px = 20) {
    p.setFont(fonte(px, true));
    p.setPen(QColor(0, 0, 0, 120));
    p.drawText(r.translated(2, 2), Qt::AlignLeft | Qt::AlignVCenter, texto);
    p.setPen(QColor(245, 227, 162));
    p.drawText(r, Qt::AlignLeft | Qt::AlignVCenter, texto);
}

} // namespace

QImage janelaNome() {
    QImage img = fundo({420, 288}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 300, 32), QStringLiteral("Corvina"), 22);
    caixa(p, QRectF(30, 99, 361, 44)); // the record of the selected player
    p.setPen(QPen(QColor(214, 180, 92, 120), 1));
    p.drawLine(QPointF(14, 153), QPointF(406, 153));
    p.drawLine(QPointF(14, 224), QPointF(406, 224));
    return img;
}

QImage janelaNovoJogador() {
    return fundo({344, 130});
}

QImage janelaRecords() {
    QImage img = fundo({642, 317}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 400, 32), QStringLiteral("Hall da Fama"), 22);
    // The closing square at the top right.
    const QRect fecha(602, 12, 30, 24);
    p.setPen(QPen(kOuro, 1));
    p.setBrush(QColor(60, 40, 26));
    p.drawRoundedRect(QRectF(fecha).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    p.setFont(fonte(16, true));
    p.setPen(QColor(240, 236, 220));
    p.drawText(fecha, Qt::AlignCenter, QStringLiteral("×"));
    // The headings over the four columns, and a band under each row.
    p.setFont(fonte(13, true));
    p.setPen(kOuro);
    p.drawText(QRect(13, 56, 300, 20), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Jogador"));
    p.drawText(QRect(380, 56, 73, 20), Qt::AlignRight | Qt::AlignVCenter,
               QStringLiteral("Vitórias"));
    p.drawText(QRect(462, 56, 80, 20), Qt::AlignRight | Qt::AlignVCenter,
               QStringLiteral("Derrotas"));
    p.drawText(QRect(560, 56, 62, 20), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Saldo"));
    for (int r = 0; r < 6; ++r) caixa(p, QRectF(10, 82 + 32 * r, 622, 28));
    botao(p, QRect(547, 279, 83, 21), QStringLiteral("Fechar"));
    botao(p, QRect(12, 279, 75, 21), QStringLiteral("Zerar"));
    botao(p, QRect(270, 279, 102, 21), QStringLiteral("Estatísticas"));
    return img;
}

QImage janelaEstatisticas() {
    QImage img = fundo({600, 480}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 400, 32), QStringLiteral("Estatísticas"), 22);
    caixa(p, QRectF(12, 76, 576, 212));  // the figures, a column per level
    caixa(p, QRectF(12, 296, 576, 146)); // the chart
    botao(p, QRect(504, 450, 84, 22), QStringLiteral("Fechar"));
    return img;
}

QImage janelaRevisao() {
    QImage img = fundo({660, 520}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 400, 32), QStringLiteral("Revisão da mão"), 22);
    caixa(p, QRectF(12, 74, 636, 300));  // the table: both hands, the pile, the stock
    caixa(p, QRectF(12, 380, 636, 100)); // the move told, Forte's throw beside it
    botao(p, QRect(564, 488, 84, 22), QStringLiteral("Fechar"));
    return img;
}

QImage janelaOpcoes() {
    QImage img = fundo({376, 235}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 300, 32), QStringLiteral("Opções"), 20);
    caixa(p, QRectF(22, 116, 334, 68));
    return img;
}

QImage janelaTipos(const std::array<QImage, 8>& versos) {
    QImage img = fundo({338, 261}, 31);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 2, 300, 30), QStringLiteral("Escolha o verso das cartas"), 15);
    const int lefts[] = {14, 94, 174, 254}, tops[] = {43, 147};
    for (int i = 0; i < 8; ++i) {
        const QPoint canto(lefts[i % 4], tops[i / 4]);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 90));
        p.drawRoundedRect(QRectF(canto + QPoint(3, 3), QSize(71, 96)), 6, 6);
        // The corners of a back carry the table's key colour: cut them to the felt.
        p.drawImage(canto, semCantos(versos[i]));
    }
    return img;
}

QImage janelaSimNao() {
    return fundo({400, 130});
}

QImage janelaNivel() {
    QImage img = fundo({380, 270}, 36);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    titulo(p, QRect(14, 4, 340, 32), QStringLiteral("Nível do adversário"), 20);
    for (int i = 0; i < 3; ++i) caixa(p, QRectF(16, 46 + 56 * i, 348, 50));
    botao(p, QRect(196, 238, 80, 22), QStringLiteral("Cancelar"));
    botao(p, QRect(284, 238, 80, 22), QStringLiteral("OK"));
    return img;
}

QImage janelaPlacar() {
    QImage img = fundo({345, 176}, 14);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    caixa(p, QRectF(12, 56, 321, 76));
    // The plate under "OK" (Label8): a bronze of middle brightness, on which the word reads
    // both in its first light grey and in the black it turns under the mouse (about 3.7:1
    // and 4.3:1).
    const QRectF ok(250, 138, 85, 21);
    QLinearGradient bronze(ok.topLeft(), ok.bottomLeft());
    bronze.setColorAt(0, QColor(164, 118, 44));
    bronze.setColorAt(1, QColor(138, 96, 30));
    p.setPen(QPen(kOuro, 1));
    p.setBrush(bronze);
    p.drawRoundedRect(ok.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    return img;
}

QImage janelaSobre(const QImage& verso) {
    QImage img = fundo({430, 189});
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.translate(16, 46);
    p.rotate(-8);
    p.scale(0.82, 0.82);
    p.drawImage(0, 0, semCantos(verso));
    p.resetTransform();
    titulo(p, QRect(104, 40, 300, 40), QStringLiteral("Corvina"), 28);
    p.setFont(fonte(12));
    p.setPen(QColor(230, 226, 210));
    p.drawText(QRect(104, 84, 316, 60), Qt::TextWordWrap,
               QStringLiteral("Um jogo de cartas da família do rummy: três trincas vencem a mão, "
                              "quatro mãos vencem a partida."));
    return img;
}

QImage semCantos(const QImage& carta) {
    QImage img = carta.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (img.pixelColor(x, y) == QColor(21, 130, 64))
                img.setPixelColor(x, y, Qt::transparent);
    return img;
}

QImage icone(int lado, const QImage& verso, const QImage& as) {
    QImage img(lado, lado, QImage::Format_ARGB32);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    const double s = lado / 256.0;
    QLinearGradient verde(0, 0, 0, lado);
    verde.setColorAt(0, kFeltro1);
    verde.setColorAt(1, kFeltro2);
    p.setPen(QPen(kOuro, std::max(1.0, 6 * s)));
    p.setBrush(verde);
    p.drawRoundedRect(QRectF(8 * s, 8 * s, 240 * s, 240 * s), 40 * s, 40 * s);
    const auto carta = [&](const QImage& c, double x, double graus) {
        p.save();
        p.translate(x * s, 140 * s);
        p.rotate(graus);
        p.drawImage(QRectF(-60 * s, -81 * s, 120 * s, 162 * s), semCantos(c));
        p.restore();
    };
    carta(verso, 100, -14);
    carta(as, 150, 10);
    return img;
}

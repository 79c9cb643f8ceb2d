#include "midia/imagens.h"

#include <QBitmap>
#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <cstdio>

#include "midia/pastas.h"

namespace corvina {

namespace {
const QColor kChave(0x15, 0x82, 0x40); // 0x408215 in the platform's blue, green, red order
const char* const kSeries[] = {"coracao", "copa", "espada", "ramo"};
const QSize kCarta(71, 96);
// Hearts, clubs, diamonds, spades: the order of the suits.
const QChar kSimbolos[] = {QChar(0x2665), QChar(0x2663), QChar(0x2666), QChar(0x2660)};

const QSize kBotoes[] = {{126, 30}, {121, 30}, {121, 30}, {122, 30}, {118, 30}, {118, 30}};
} // namespace

QString pastaDeImagens() {
    const QString programa = PastaPrograma();
    QStringList candidatas{programa + "/assets", programa + "/" + CORVINA_DADOS_INSTALADOS};
    // The sources serve only a program of the build tree: an installed game that lost a file
    // must say so, not borrow it.
    if (QDir(programa).absolutePath().startsWith(QDir(CORVINA_PASTA_DO_BUILD).absolutePath()))
        candidatas << QStringLiteral(CORVINA_PASTA_ASSETS);
    for (const QString& candidata : candidatas)
        if (QFileInfo::exists(candidata + "/mesa.png")) return QDir(candidata).absolutePath();
    return QDir(programa + "/" + CORVINA_DADOS_INSTALADOS).absolutePath();
}

QString pastaDosSons() {
    return pastaDeImagens() + "/sons";
}

QPixmap recorta(const QPixmap& figura) {
    QPixmap saida = figura;
    saida.setMask(figura.createMaskFromColor(kChave, Qt::MaskInColor));
    return saida;
}

// A card that can still be told apart: its value and suit on white, the corners in the key.
QPixmap cartaSubstituta(const QString& rotulo) {
    QPixmap p(kCarta);
    p.fill(kChave);
    QPainter pintor(&p);
    pintor.setRenderHint(QPainter::Antialiasing, true);
    pintor.setPen(QColor(60, 60, 60));
    pintor.setBrush(QColor(250, 250, 246));
    pintor.drawRoundedRect(QRectF(0.5, 0.5, kCarta.width() - 1, kCarta.height() - 1), 5, 5);
    QFont f("DejaVu Sans");
    f.setPixelSize(18);
    f.setBold(true);
    pintor.setFont(f);
    const bool vermelha = rotulo.contains(QChar(0x2665)) || rotulo.contains(QChar(0x2666));
    pintor.setPen(vermelha ? QColor(196, 32, 48) : QColor(24, 24, 28));
    pintor.drawText(p.rect(), Qt::AlignCenter, rotulo);
    return p;
}

QPixmap Imagens::carrega(const QString& arquivo, QSize tamanho, const QString& rotulo) {
    QPixmap p(pasta_ + "/" + arquivo);
    if (!p.isNull()) return p;
    faltando_ << arquivo;
    if (!rotulo.isEmpty()) return cartaSubstituta(rotulo);
    QPixmap substituta(tamanho);
    substituta.fill(QColor(200, 200, 200));
    return substituta;
}

void avisaFigurasFaltando(const QStringList& arquivos) {
    static QStringList ditos;
    QStringList novos;
    for (const QString& a : arquivos)
        if (!ditos.contains(a)) novos << a;
    if (novos.isEmpty()) return;
    ditos << novos;
    std::fprintf(stderr, "corvina: could not read %s in %s; plain pictures stand in for them\n",
                 qPrintable(novos.join(", ")), qPrintable(pastaDeImagens()));
}

QPixmap figuraDoSplash() {
    QPixmap p(pastaDeImagens() + "/splash.png");
    if (!p.isNull()) return p;
    avisaFigurasFaltando({"splash.png"});
    p = QPixmap(500, 160);
    p.fill(QColor(24, 60, 40));
    return p;
}

Imagens::Imagens(const QString& pasta) : pasta_(pasta) {
    nada_ = QPixmap(kCarta);
    nada_.fill(Qt::transparent);
    for (int n = 1; n <= kNaipes; ++n)
        for (int v = 1; v <= kValores; ++v) {
            const Figura f = figuraDaFace(n, v);
            figuras_[f] = carrega(QString("cartas/%1%2.png").arg(kSeries[n - 1]).arg(v), kCarta,
                                  QString(nomeDoValor(v)) + kSimbolos[n - 1]);
        }
    for (int t = 1; t <= 8; ++t)
        figuras_[figuraDoVerso(t)] =
            carrega(QString("cartas/tipotC%1.png").arg(t), kCarta, QString("#%1").arg(t));
    for (std::size_t f = 0; f < figuras_.size(); ++f)
        if (!figuras_[f].isNull()) recortadas_[f] = recorta(figuras_[f]);
    for (int i = 0; i < 6; ++i) botoes_[i] = carrega(QString("btn2_%1.png").arg(i + 1), kBotoes[i]);
    mesa_ = carrega("mesa.png", QSize(800, 600));
    avisaFigurasFaltando(faltando_);
}

const QPixmap& Imagens::da(Figura f) const {
    if (f < 0 || static_cast<std::size_t>(f) >= figuras_.size() || figuras_[f].isNull())
        return nada_;
    return figuras_[f];
}

const QPixmap& Imagens::recortada(Figura f) const {
    if (f < 0 || static_cast<std::size_t>(f) >= recortadas_.size() || recortadas_[f].isNull())
        return nada_;
    return recortadas_[f];
}

} // namespace corvina

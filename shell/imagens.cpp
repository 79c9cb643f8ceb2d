#include "shell/imagens.h"

#include <QBitmap>
#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace corvina {

namespace {
const QColor kChave(0x15, 0x82, 0x40); // 0x408215 in the platform's blue, green, red order
const char* const kSeries[] = {"coracao", "copa", "espada", "ramo"};
const QSize kCarta(71, 96);
const QSize kBotoes[] = {{126, 30}, {121, 30}, {121, 30}, {122, 30}, {118, 30}, {118, 30}};
} // namespace

QString pastaDeImagens() {
    const QString programa = QCoreApplication::applicationDirPath();
    for (const QString& candidata :
         {programa + "/assets", programa + "/../assets", programa + "/../../assets",
          QStringLiteral(CORVINA_PASTA_ASSETS)}) {
        if (QFileInfo::exists(candidata + "/mesa.png")) return QDir(candidata).absolutePath();
    }
    return programa + "/assets";
}

QString pastaDosSons() {
    return pastaDeImagens() + "/sons";
}

QPixmap recorta(const QPixmap& figura) {
    QPixmap saida = figura;
    saida.setMask(figura.createMaskFromColor(kChave, Qt::MaskInColor));
    return saida;
}

QPixmap Imagens::carrega(const QString& arquivo, QSize tamanho) {
    QPixmap p(pasta_ + "/" + arquivo);
    if (!p.isNull()) return p;
    ++faltando_;
    QPixmap substituta(tamanho);
    substituta.fill(QColor(200, 200, 200));
    return substituta;
}

Imagens::Imagens(const QString& pasta) : pasta_(pasta) {
    nada_ = QPixmap(kCarta);
    nada_.fill(Qt::transparent);
    for (int n = 1; n <= kNaipes; ++n)
        for (int v = 1; v <= kValores; ++v) {
            const Figura f = figuraDaFace(n, v);
            figuras_[f] = carrega(QString("cartas/%1%2.png").arg(kSeries[n - 1]).arg(v), kCarta);
        }
    for (int t = 1; t <= 8; ++t)
        figuras_[figuraDoVerso(t)] = carrega(QString("cartas/tipotC%1.png").arg(t), kCarta);
    for (std::size_t f = 0; f < figuras_.size(); ++f)
        if (!figuras_[f].isNull()) recortadas_[f] = recorta(figuras_[f]);
    for (int i = 0; i < 6; ++i) botoes_[i] = carrega(QString("btn2_%1.png").arg(i + 1), kBotoes[i]);
    mesa_ = carrega("mesa.png", QSize(800, 600));
    splash_ = carrega("splash.png", QSize(500, 160));
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

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

int escalaDasFiguras(qreal razao) {
    return razao > 1.0 ? 2 : 1;
}

int escalaDaMesa(qreal razao) {
    return razao > 2.0 ? 3 : escalaDasFiguras(razao);
}

QString arquivoNaEscala(const QString& arquivo, int escala) {
    if (escala == 1) return arquivo;
    const QString sem = arquivo.chopped(4); // ".png"
    return QString("%1@%2x.png").arg(sem).arg(escala);
}

namespace {
// The file at the scale asked for, with its pixel ratio; null when it can't be read.
QPixmap leNaEscala(const QString& pasta, const QString& arquivo, int escala) {
    QPixmap p(pasta + "/" + arquivoNaEscala(arquivo, escala));
    if (!p.isNull()) p.setDevicePixelRatio(escala);
    return p;
}
} // namespace

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

QPixmap figuraDoSplash(qreal razao) {
    const int escala = escalaDasFiguras(razao);
    QPixmap p = leNaEscala(pastaDeImagens(), "splash.png", escala);
    if (p.isNull() && escala > 1) p = leNaEscala(pastaDeImagens(), "splash.png", 1);
    if (!p.isNull()) return p;
    avisaFigurasFaltando({"splash.png"});
    p = QPixmap(500, 160);
    p.fill(QColor(24, 60, 40));
    return p;
}

Imagens::Imagens(const QString& pasta) : pasta_(pasta) {
    nada_ = QPixmap(kCarta);
    nada_.fill(Qt::transparent);
    QStringList faltando;
    conjuntos_[0] = carregaConjunto(1, false, faltando);
    faltando_ = static_cast<int>(faltando.size());
    avisaFigurasFaltando(faltando);
}

const Imagens::Conjunto& Imagens::conjunto() const {
    auto& c = conjuntos_[indice(escala_, quatroCores_)];
    if (!c) {
        // The usual set of this scale first: what the new one lacks, it lends.
        if (!conjuntos_[indice(escala_, false)]) {
            QStringList faltando;
            conjuntos_[indice(escala_, false)] = carregaConjunto(escala_, false, faltando);
            avisaFigurasFaltando(faltando);
        }
        if (!c) {
            QStringList faltando;
            c = carregaConjunto(escala_, quatroCores_, faltando);
            avisaFigurasFaltando(faltando);
        }
    }
    return *c;
}

Imagens::Conjunto Imagens::carregaConjunto(int escala, bool quatro, QStringList& faltando) const {
    const Conjunto* base = quatro       ? &*conjuntos_[indice(escala, false)]
                           : escala > 1 ? &*conjuntos_[indice(1, false)]
                                        : nullptr;
    const QString faces = quatro ? "cartas4" : "cartas";
    Conjunto c;
    const auto carrega = [&](const QString& arquivo, QSize tamanho, const QString& rotulo,
                             const QPixmap* daBase) {
        QPixmap p = leNaEscala(pasta_, arquivo, escala);
        if (!p.isNull()) return p;
        faltando << arquivoNaEscala(arquivo, escala);
        if (daBase) return *daBase;
        if (!rotulo.isEmpty()) return cartaSubstituta(rotulo);
        QPixmap substituta(tamanho);
        substituta.fill(QColor(200, 200, 200));
        return substituta;
    };
    for (int n = 1; n <= kNaipes; ++n)
        for (int v = 1; v <= kValores; ++v) {
            const Figura f = figuraDaFace(n, v);
            c.figuras[f] = carrega(QString("%1/%2%3.png").arg(faces, kSeries[n - 1]).arg(v), kCarta,
                                   QString(nomeDoValor(v)) + kSimbolos[n - 1],
                                   base ? &base->figuras[f] : nullptr);
            c.recortadas[f] = recorta(c.figuras[f]);
        }
    if (quatro) {
        // The rest is the usual set's, shared: only the faces differ.
        for (int t = 1; t <= 8; ++t) {
            const Figura f = figuraDoVerso(t);
            c.figuras[f] = base->figuras[f];
            c.recortadas[f] = base->recortadas[f];
        }
        c.botoes = base->botoes;
        c.mesa = base->mesa;
        return c;
    }
    for (int t = 1; t <= 8; ++t) {
        const Figura f = figuraDoVerso(t);
        c.figuras[f] = carrega(QString("cartas/tipotC%1.png").arg(t), kCarta, QString("#%1").arg(t),
                               base ? &base->figuras[f] : nullptr);
        c.recortadas[f] = recorta(c.figuras[f]);
    }
    for (int i = 0; i < 6; ++i)
        c.botoes[i] = carrega(QString("btn2_%1.png").arg(i + 1), kBotoes[i], {},
                              base ? &base->botoes[i] : nullptr);
    c.mesa = carrega("mesa.png", QSize(800, 600), {}, base ? &base->mesa : nullptr);
    return c;
}

void Imagens::paraARazao(qreal razao) const {
    escala_ = escalaDaMesa(razao);
}

void Imagens::usaQuatroCores(bool sim) const {
    quatroCores_ = sim;
}

const QPixmap& Imagens::da(Figura f) const {
    const auto& figuras = conjunto().figuras;
    if (f < 0 || static_cast<std::size_t>(f) >= figuras.size() || figuras[f].isNull()) return nada_;
    return figuras[f];
}

const QPixmap& Imagens::recortada(Figura f) const {
    const auto& recortadas = conjunto().recortadas;
    if (f < 0 || static_cast<std::size_t>(f) >= recortadas.size() || recortadas[f].isNull())
        return nada_;
    return recortadas[f];
}

} // namespace corvina

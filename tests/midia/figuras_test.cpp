// Every picture has its 2x twin, twice its size, and the same picture: brought down to 1x its
// frame must match, or a scaled screen would show another window.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QImage>
#include <algorithm>

#include "midia/imagens.h"

namespace corvina {
namespace {

// The mean difference per channel, 0..255, along the picture's outer frame of pixels: a part
// laid out against the size in device pixels instead of the logical one ends elsewhere, and
// the frame shows it first.
double naMoldura(const QImage& a, const QImage& b) {
    double soma = 0;
    int n = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            if (x > 1 && y > 1 && x < a.width() - 2 && y < a.height() - 2) continue;
            const QColor p = a.pixelColor(x, y), q = b.pixelColor(x, y);
            soma += std::abs(p.red() - q.red()) + std::abs(p.green() - q.green()) +
                    std::abs(p.blue() - q.blue());
            ++n;
        }
    return soma / (3.0 * n);
}

// Good pairs differ by 2 at most along the frame (smoothing); a surface laid out at twice its
// size differed by 17.
constexpr double kLimite = 8;

TEST(Figuras, EachPictureAt2xIsTheSamePictureFiner) {
    int pares = 0;
    QDirIterator it(pastaDeImagens(), {"*.png"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString umX = it.next();
        if (umX.contains('@') || umX.contains("/icones/") || umX.contains("/sons/")) continue;
        const QString doisX = arquivoNaEscala(umX, 2);
        const QImage a(umX), b(doisX);
        ASSERT_FALSE(b.isNull()) << doisX.toStdString() << " is missing";
        ASSERT_EQ(b.size(), a.size() * 2) << doisX.toStdString();
        const QImage reduzida = b.scaled(a.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                    .convertToFormat(QImage::Format_RGB32);
        const double d = naMoldura(reduzida, a.convertToFormat(QImage::Format_RGB32));
        EXPECT_LT(d, kLimite) << doisX.toStdString();
        ++pares;
    }
    EXPECT_GE(pares, 52 + 8 + 1 + 6 + 1 + 9) << "faces, backs, table, buttons, splash, windows";
}

} // namespace
} // namespace corvina

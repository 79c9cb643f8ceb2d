// The table's pictures: drawn from the set that suits the screen and the table's size, the
// four-colour deck, the stand-ins for missing files and the cut of the key colour.

#include <gtest/gtest.h>

#include <QBitmap>
#include <cstdlib>

#include "apoio/mesa_na_tela.h"

namespace corvina {
namespace {

// At each size of the table, on the process's screen (ratio 1, and 2 under QT_SCALE_FACTOR=2, a
// test of its own), the first card is drawn from the picture set made for that size: its corner
// on the screen is nearer that set, brought to the size, than any other set (an enlarged 1x
// card comes in steps). And a click reaches the part painted under it.
TEST(MesaNaTela, EachSizeIsDrawnFromItsOwnPicturesAndClickedThere) {
    MesaNaTela t;
    const qreal razao = t.janela.devicePixelRatioF();
    const Carta c = cartaNa(t.jogo.mesa.jogValor, t.jogo.mesa.jogNaipe, 1);
    const char* const series[] = {"coracao", "copa", "espada", "ramo"};
    const QString arquivo = QString("cartas/%1%2.png").arg(series[c.naipe - 1]).arg(c.valor);
    for (const int tamanho : {100, 150, 250}) {
        t.jogo.modulo.tamanhoDaMesa = tamanho; // as the options window leaves it
        t.tecla(Qt::Key_F9);
        const qreal s = tamanho / 100.0;
        ASSERT_EQ(t.janela.size(), QSize(800, 600) * s);
        const QImage tela = t.janela.grab().toImage().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(tela.size(), QSize(800, 600) * s * razao);
        // The card's left edge and value, where no other card lies over it.
        const QRect lugar = t.janela.retanguloDa(peca::cj(1));
        const QSize canto = QSize(20, 60) * s * razao;
        const QImage naTela = tela.copy(QRect(lugar.topLeft() * razao, canto));
        const auto distancia = [&](int escala) {
            const QImage f = QImage(pastaDeImagens() + "/" + arquivoNaEscala(arquivo, escala))
                                 .convertToFormat(QImage::Format_RGB32)
                                 .scaled(QSize(71, 96) * s * razao, Qt::IgnoreAspectRatio,
                                         Qt::SmoothTransformation);
            long d = 0;
            for (int y = 0; y < canto.height(); ++y)
                for (int x = 0; x < canto.width(); ++x)
                    d += std::abs(qGray(naTela.pixel(x, y)) - qGray(f.pixel(x, y)));
            return d;
        };
        // Twice the size wants the 2x set; past twice, the 3x one.
        const int devida = razao * s > 2 ? 3 : razao * s > 1 ? 2 : 1;
        for (const int outra : {1, 2, 3}) {
            if (outra == devida) continue;
            EXPECT_LT(distancia(devida), distancia(outra))
                << tamanho << "%: drawn from the " << outra << "x pictures";
        }
    }
    const int16 antes = t.jogo.mesa.qtdJog;
    t.clica(t.janela.retanguloDa(peca::kCostas2).center());
    EXPECT_EQ(t.jogo.mesa.qtdJog, antes + 1) << "the click at 250% drew a card";
}

TEST(Imagens, MissingPicturesLeaveStandInsAndTheGameGoesOn) {
    const Imagens nenhuma("/nao/existe");
    EXPECT_EQ(nenhuma.faltando(), 52 + 8 + 6 + 1);
    EXPECT_EQ(nenhuma.da(figuraDaFace(2, 7)).size(), QSize(71, 96));
    // A stand-in still shows which card it is.
    EXPECT_NE(nenhuma.da(figuraDaFace(2, 7)).toImage(), nenhuma.da(figuraDaFace(2, 8)).toImage());
    EXPECT_NE(nenhuma.da(figuraDaFace(1, 7)).toImage(), nenhuma.da(figuraDaFace(2, 7)).toImage());
    EXPECT_FALSE(nenhuma.mesa().isNull());
    const Imagens todas(pastaDeImagens());
    EXPECT_EQ(todas.faltando(), 0) << "assets/ holds every picture";
}

TEST(Imagens, TheOutlineCutsTheKeyColourExactlyAndNothingElse) {
    QImage figura(4, 1, QImage::Format_RGB32);
    figura.setPixel(0, 0, qRgb(21, 130, 64)); // the key
    figura.setPixel(1, 0, qRgb(21, 130, 65)); // one shade away: stays
    figura.setPixel(2, 0, qRgb(255, 255, 255));
    figura.setPixel(3, 0, qRgb(21, 130, 64));
    const QImage mascara = recorta(QPixmap::fromImage(figura)).mask().toImage();
    EXPECT_EQ(mascara.pixelIndex(0, 0), 0);
    EXPECT_EQ(mascara.pixelIndex(1, 0), 1);
    EXPECT_EQ(mascara.pixelIndex(2, 0), 1);
    EXPECT_EQ(mascara.pixelIndex(3, 0), 0);
}

} // namespace
} // namespace corvina

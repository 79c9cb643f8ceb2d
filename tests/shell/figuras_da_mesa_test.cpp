// The table's pictures: drawn from the set that suits the screen and the table's size, the
// four-colour deck, the stand-ins for missing files and the cut of the key colour.

#include <gtest/gtest.h>

#include <QBitmap>
#include <cstdlib>

#include "apoio/mesa_na_tela.h"

namespace corvina {
namespace {

// Run at the screen's ratio of the process: 1, and 2 under QT_SCALE_FACTOR=2 (a test of its own).
TEST(MesaNaTela, CardsAreDrawnFromThePicturesOfTheScreensRatio) {
    MesaNaTela t;
    const qreal razao = t.janela.devicePixelRatioF();
    const QImage tela = t.janela.grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(tela.size(), QSize(800, 600) * razao);
    const int escala = escalaDaMesa(razao);

    // The first card of the row, its left part (its edge and its value) where no card lies over.
    const Carta c = cartaNa(t.jogo.mesa.jogValor, t.jogo.mesa.jogNaipe, 1);
    const char* const series[] = {"coracao", "copa", "espada", "ramo"};
    const QString arquivo = QString("cartas/%1%2.png").arg(series[c.naipe - 1]).arg(c.valor);
    const QImage daEscala = QImage(pastaDeImagens() + "/" + arquivoNaEscala(arquivo, escala))
                                .convertToFormat(QImage::Format_RGB32);
    const QImage umX =
        QImage(pastaDeImagens() + "/" + arquivo).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(daEscala.size(), QSize(71, 96) * escala);
    const QRect lugar = t.janela.retanguloDa(peca::cj(1));
    const QRect parte(0, 0, 24 * escala, 96 * escala);
    const QImage naTela = tela.copy(parte.translated(lugar.topLeft() * razao));
    const auto iguais = [&](const QImage& a, const QImage& b) {
        int n = 0;
        for (int y = 0; y < parte.height(); ++y)
            for (int x = 0; x < parte.width(); ++x) n += a.pixel(x, y) == b.pixel(x, y);
        return static_cast<double>(n) / (parte.width() * parte.height());
    };
    const double comOArquivo = iguais(naTela, daEscala);
    EXPECT_GT(comOArquivo, 0.99) << "drawn from " << arquivoNaEscala(arquivo, escala).toStdString();
    if (escala > 1) {
        // The 1x picture enlarged is another picture: its edges and its value come in steps
        // (the paper between them is alike in both).
        const QImage aumentada = umX.scaled(umX.size() * escala);
        EXPECT_LT(iguais(naTela, aumentada), comOArquivo - 0.02);
    }
}

TEST(MesaNaTela, QTurnsTheFourColourDeckOnAndOffAndTheSettingKeepsIt) {
    MesaNaTela t;
    // The ace of diamonds: red in the usual deck, blue in the four-colour one.
    const auto temCor = [&](QColor cor) {
        const QImage as = t.imagens.da(figuraDaFace(3, 1)).toImage();
        for (int y = 0; y < as.height(); ++y)
            for (int x = 0; x < as.width(); ++x)
                if (as.pixelColor(x, y) == cor) return true;
        return false;
    };
    const QColor azul(28, 86, 196), vermelho(196, 32, 48);
    EXPECT_TRUE(temCor(vermelho));
    t.tecla(Qt::Key_Q);
    EXPECT_EQ(t.settings.le(chaveBase(), ajuste::kQuatroCores, ""), "True");
    EXPECT_TRUE(temCor(azul));
    EXPECT_FALSE(temCor(vermelho));
    t.tecla(Qt::Key_Q);
    EXPECT_EQ(t.settings.le(chaveBase(), ajuste::kQuatroCores, ""), "False");
    EXPECT_TRUE(temCor(vermelho));
}

// At 150% the window is 1200 by 900, drawn from the pictures made for twice the size, and a
// click reaches the part painted under it.
TEST(MesaNaTela, ALargerTableIsDrawnAndClickedAtItsSize) {
    MesaNaTela t;
    t.jogo.modulo.tamanhoDaMesa = 150; // as the options window leaves it
    t.tecla(Qt::Key_F9);
    ASSERT_EQ(t.janela.size(), QSize(1200, 900));
    const QRect baralho = t.janela.retanguloDa(peca::kCostas2);
    EXPECT_NEAR(baralho.width(), 71 * 1.5, 1);
    EXPECT_NEAR(baralho.height(), 96 * 1.5, 1);
    t.clica(baralho.center());
    EXPECT_EQ(t.jogo.mesa.qtdJog, 10) << "the click drew a card";
    // The first card's corner: the 2x picture brought down, not the 1x one blown up.
    const Carta c = cartaNa(t.jogo.mesa.jogValor, t.jogo.mesa.jogNaipe, 1);
    const char* const series[] = {"coracao", "copa", "espada", "ramo"};
    const QString arquivo = QString("cartas/%1%2").arg(series[c.naipe - 1]).arg(c.valor);
    const QImage tela = t.janela.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect lugar = t.janela.retanguloDa(peca::cj(1));
    const QSize canto(30, 60);
    const QImage naTela = tela.copy(QRect(lugar.topLeft(), canto));
    const auto distancia = [&](const QString& nome) {
        const QImage f =
            QImage(pastaDeImagens() + "/" + nome)
                .convertToFormat(QImage::Format_RGB32)
                .scaled(QSize(71, 96) * 3 / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .copy(QRect(QPoint(0, 0), canto));
        long d = 0;
        for (int y = 0; y < canto.height(); ++y)
            for (int x = 0; x < canto.width(); ++x)
                d += std::abs(qGray(naTela.pixel(x, y)) - qGray(f.pixel(x, y)));
        return d;
    };
    EXPECT_LT(distancia(arquivo + "@2x.png"), distancia(arquivo + ".png"));
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

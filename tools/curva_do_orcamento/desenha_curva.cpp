// Reads lines "ms share low high hands" on standard input and draws the share of hands won,
// with its 95% interval, against the time a decision (on a log scale), as a PNG.

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QScatterSeries>
#include <QTextStream>
#include <QValueAxis>
#include <cstdio>

namespace {

constexpr int kLargura = 720, kAltura = 440;
constexpr double kMenorParte = 0.2, kMaiorParte = 0.8; // the share's axis, around a half
constexpr double kMenorMs = 0.5, kMaiorMs = 500;

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: corvina-desenha-curva <title> <out.png> < points\n");
        return 2;
    }
    QApplication app(argc, argv);
    auto* parte = new QLineSeries;
    auto* pontos = new QScatterSeries;
    auto* baixo = new QScatterSeries;
    auto* alto = new QScatterSeries;
    parte->setName("share of decided hands");
    baixo->setName("95% interval");
    alto->setName("");
    const QColor azul(40, 110, 190), cinza(120, 120, 120);
    parte->setColor(azul);
    pontos->setColor(azul);
    pontos->setMarkerSize(9);
    for (auto* s : {baixo, alto}) {
        s->setMarkerShape(QScatterSeries::MarkerShapeRectangle);
        s->setMarkerSize(5);
        s->setColor(cinza);
        s->setBorderColor(cinza);
    }
    QTextStream in(stdin);
    while (!in.atEnd()) {
        double ms = 0, share = 0, low = 0, high = 0;
        long maos = 0;
        in >> ms >> share >> low >> high >> maos;
        if (in.status() != QTextStream::Ok || ms <= 0) break;
        parte->append(ms, share);
        pontos->append(ms, share);
        baixo->append(ms, low);
        alto->append(ms, high);
    }
    // The view owns the chart.
    auto* grafico = new QChart;
    grafico->setTitle(QString::fromLocal8Bit(argv[1]));
    for (auto* s : {static_cast<QXYSeries*>(parte), static_cast<QXYSeries*>(pontos),
                    static_cast<QXYSeries*>(baixo), static_cast<QXYSeries*>(alto)})
        grafico->addSeries(s);
    auto* x = new QLogValueAxis;
    x->setTitleText("ms a decision");
    x->setLabelFormat("%g");
    x->setBase(10);
    x->setRange(kMenorMs, kMaiorMs);
    x->setMinorTickCount(8);
    auto* y = new QValueAxis;
    y->setRange(kMenorParte, kMaiorParte);
    y->setTitleText("share won");
    grafico->addAxis(x, Qt::AlignBottom);
    grafico->addAxis(y, Qt::AlignLeft);
    for (auto* s : grafico->series()) {
        s->attachAxis(x);
        s->attachAxis(y);
    }
    grafico->legend()->markers(alto).front()->setVisible(false);
    grafico->legend()->markers(pontos).front()->setVisible(false);
    QChartView vista(grafico);
    vista.setRenderHint(QPainter::Antialiasing);
    vista.resize(kLargura, kAltura);
    return vista.grab().save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}

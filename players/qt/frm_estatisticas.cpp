#include "players/qt/frm_estatisticas.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QLineSeries>
#include <QValueAxis>
#include <algorithm>

#include "players/lista_de_jogadores.h"
#include "players/qt/frm_revisao.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
constexpr QSize kTamanho(600, 480);
constexpr int kColunaDosNomes = 16, kPrimeiraColuna = 190, kLarguraDaColuna = 99;
constexpr int kTopoDoCabecalho = 80, kTopoDasLinhas = 102, kAlturaDaLinha = 18;
const QRect kLugarDoGrafico(16, 300, 568, 138);
constexpr int kMenorEixo = 10; // matches the chart's axis spans at least
const QColor kOuro(230, 196, 110), kClaro(240, 236, 220);
// A colour a column keeps on the chart, told apart also by the line's pattern; more columns
// than colours take them again with another pattern.
const std::array<QColor, 4> kCores = {QColor(240, 236, 220), QColor(150, 200, 255),
                                      QColor(120, 220, 140), QColor(250, 170, 90)};
const std::array<Qt::PenStyle, 5> kTracos = {Qt::SolidLine, Qt::DashLine, Qt::DotLine,
                                             Qt::DashDotLine, Qt::DashDotDotLine};

QRect celula(int coluna, int top) {
    return {kPrimeiraColuna + kLarguraDaColuna * coluna, top, kLarguraDaColuna - 4, kAlturaDaLinha};
}
} // namespace

FrmEstatisticas::FrmEstatisticas(QWidget* dono, const Module1& modulo, Armazem& armazem,
                                 Historicos& historicos, const Imagens* imagens)
    : JanelaDeFigura(dono, "frmestatisticas", kTamanho), armazem_(armazem), historicos_(historicos),
      imagens_(imagens) {
    setObjectName("FrmEstatisticas");
    setWindowTitle("Estatísticas");
    alca(rotulo("Titulo", "", QRect(0, 0, kTamanho.width(), 36)));
    rotulo("RotuloJogador", "Jogador:", QRect(16, 44, 70, 24), 13, true, kOuro);
    jogador_ = new QComboBox(this);
    jogador_->setObjectName("Jogador");
    jogador_->setGeometry(90, 44, 220, 24);
    jogador_->setAccessibleName("Jogador");
    for (const std::string& nome : leListaDeJogadores(armazem_))
        jogador_->addItem(QString::fromStdString(nome));
    const int atual = jogador_->findText(QString::fromStdString(modulo.nomeJogador));
    if (atual >= 0) jogador_->setCurrentIndex(atual);

    // Centred: a title as wide as its column would touch the next one's, right-aligned.
    for (std::size_t i = 0; i < kColunasDoQuadro; ++i)
        rotulo(("Coluna" + std::to_string(i)).c_str(),
               QString::fromStdString(colunasDoQuadro()[i].titulo),
               celula(static_cast<int>(i), kTopoDoCabecalho), 11, true, kOuro, Qt::AlignCenter);
    const std::vector<LinhaDoQuadro> modelo = quadroDeEstatisticas({});
    for (std::size_t r = 0; r < modelo.size(); ++r) {
        const int top = kTopoDasLinhas + kAlturaDaLinha * static_cast<int>(r);
        rotulo(("Linha" + std::to_string(r)).c_str(), QString::fromStdString(modelo[r].nome),
               QRect(kColunaDosNomes, top, kPrimeiraColuna - kColunaDosNomes, kAlturaDaLinha), 12,
               false, kClaro);
        std::array<QLabel*, kColunasDoQuadro> linha{};
        for (std::size_t i = 0; i < kColunasDoQuadro; ++i)
            linha[i] = rotulo(("Valor" + std::to_string(r) + "_" + std::to_string(i)).c_str(), "",
                              celula(static_cast<int>(i), top), 12, false, kClaro, Qt::AlignCenter);
        valores_.push_back(linha);
    }

    grafico_ = new QChartView(this);
    grafico_->setObjectName("Grafico");
    grafico_->setGeometry(kLugarDoGrafico);
    grafico_->setRenderHint(QPainter::Antialiasing);
    grafico_->setStyleSheet("background: transparent;");
    grafico_->setAccessibleName("Aproveitamento por nível nas últimas partidas");

    comando("Fechar", "Fechar", QRect(504, 450, 84, 22), [this] {
        accept();
    })->setAlignment(Qt::AlignCenter);
    if (imagens_) {
        revisao_ = comando(
            "Revisao", "<u>Revisão das últimas partidas</u>", QRect(16, 450, 240, 22),
            [this] {
                const auto maos = maosDasRevisoes(revisoes_);
                if (!maos.empty()) FrmRevisao(this, *imagens_, maos, 0).exec();
                activateWindow(); // the keys come back here
            },
            12, false);
        revisao_->setStyleSheet("color: rgb(240,236,220);");
    }
    connect(jogador_, &QComboBox::currentTextChanged, this,
            [this](const QString& nome) { mostra(nome.toStdString()); });
    mostra(jogador_->currentText().toStdString());
    vigiaTeclas();
    centraNoDono(*this);
}

void FrmEstatisticas::mostra(const std::string& nome) {
    const HistoricoDePartidas h =
        nome.empty() ? HistoricoDePartidas{} : historicos_.historico(nome);
    const std::vector<LinhaDoQuadro> quadro = quadroDeEstatisticas(h);
    if (revisao_) {
        // Read once for the player shown: the command's state and the review both use it.
        revisoes_ = nome.empty() ? std::vector<RevisaoDePartida>{} : historicos_.revisoes(nome);
        revisao_->habilita(!revisoes_.empty());
    }
    for (std::size_t r = 0; r < quadro.size() && r < valores_.size(); ++r)
        for (std::size_t i = 0; i < kColunasDoQuadro; ++i)
            valores_[r][i]->setText(QString::fromStdString(quadro[r].valores[i]));

    auto* grafico = new QChart;
    grafico->setBackgroundVisible(false);
    grafico->setMargins(QMargins(2, 2, 2, 2));
    grafico->legend()->setAlignment(Qt::AlignRight);
    grafico->legend()->setLabelColor(kClaro);
    // As wide as the matches there are, up to the last hundred: a few matches fill the chart.
    const int partidas = static_cast<int>(
        std::min<std::size_t>(h.partidas.size(), static_cast<std::size_t>(kPartidasDaCurva)));
    // Half a match of air at either end and a little above 100% and below 0%, so that no point
    // lies on an axis or the frame; the ticks stay on whole matches and on 0, 50 and 100%.
    const int ultima = std::max(partidas, kMenorEixo);
    auto* eixoX = new QValueAxis;
    eixoX->setRange(0.5, ultima + 0.5);
    eixoX->setLabelFormat("%d");
    eixoX->setTickType(QValueAxis::TicksDynamic);
    eixoX->setTickAnchor(0);
    eixoX->setTickInterval(ultima <= kMenorEixo ? 1 : ultima <= 50 ? 10 : 20);
    auto* eixoY = new QValueAxis;
    eixoY->setRange(-8, 108);
    eixoY->setLabelFormat("%d%%");
    eixoY->setTickType(QValueAxis::TicksDynamic);
    eixoY->setTickAnchor(0);
    eixoY->setTickInterval(50);
    for (QValueAxis* e : {eixoX, eixoY}) {
        e->setLabelsColor(kClaro);
        e->setGridLineColor(QColor(255, 255, 255, 40));
        e->setLinePenColor(kOuro);
    }
    grafico->addAxis(eixoX, Qt::AlignBottom);
    grafico->addAxis(eixoY, Qt::AlignLeft);
    const auto curvas = curvasDeAproveitamento(h);
    for (std::size_t i = 0; i < kColunasDoQuadro; ++i) {
        auto* serie = new QLineSeries;
        serie->setName(QString::fromStdString(colunasDoQuadro()[i].titulo));
        serie->setPen(QPen(kCores[i % kCores.size()], 2, kTracos[i % kTracos.size()]));
        serie->setPointsVisible(true); // a level met once still shows its point
        serie->setMarkerSize(7);
        for (const PontoDaCurva& p : curvas[i]) serie->append(p.partida, 100 * p.fracao);
        grafico->addSeries(serie);
        serie->attachAxis(eixoX);
        serie->attachAxis(eixoY);
    }
    QChart* antigo = grafico_->chart();
    grafico_->setChart(grafico);
    delete antigo;
    grafico_->setAccessibleDescription(QString::fromStdString(resumoDasCurvas(h)));
}

QString FrmEstatisticas::resumo() const {
    return grafico_->accessibleDescription();
}

bool FrmEstatisticas::tecla(int key) {
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    accept();
    return true;
}

} // namespace corvina

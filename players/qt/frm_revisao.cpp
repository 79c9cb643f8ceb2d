#include "players/qt/frm_revisao.h"

#include <QAccessible>
#include <QDate>
#include <QPainter>
#include <algorithm>

#include "machine/niveis.h"
#include "machine/partida_em_texto.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
constexpr QSize kTamanho(660, 520);
constexpr int kCartaL = 71, kCartaA = 96;
constexpr int kPassoDaFila = 46, kPassoDoMonte = 16;
constexpr int kFilaLeft = 24, kTopoMaquina = 100, kTopoJogador = 228;
constexpr int kPilhaLeft = 520, kMiniL = 40, kMiniA = 54;
const QPoint kForte(30, 402);
constexpr std::size_t kProximasDoMonte = 3;
const QColor kOuro(230, 196, 110), kClaro(240, 236, 220);
} // namespace

std::vector<MaoParaRever> maosDaPartida(const std::vector<RegistroDaMao>& maos,
                                        const QString& partida) {
    std::vector<MaoParaRever> lista;
    for (std::size_t i = 0; i < maos.size(); ++i) {
        const FimDaMao fim = maos[i].fim;
        const char* como = fim == FimDaMao::Jog   ? "você venceu"
                           : fim == FimDaMao::Mac ? "a máquina venceu"
                                                  : "o monte acabou";
        const QString mao = partida.isEmpty() ? "Mão %1: %2" : "mão %1: %2";
        lista.push_back({partida + mao.arg(i + 1).arg(como), maos[i]});
    }
    return lista;
}

std::vector<MaoParaRever> maosDasRevisoes(const std::vector<RevisaoDePartida>& revisoes) {
    std::vector<MaoParaRever> lista;
    const QDate inicio(2000, 1, 1);
    for (const RevisaoDePartida& r : revisoes) {
        const auto maos = leMaos(r.maos);
        if (!maos) continue; // a match whose hands can't be read is passed over
        const PartidaDoHistorico& p = r.partida;
        const QString partida =
            QString("%1 · %2 · %3 por %4 × %5 · ")
                .arg(inicio.addDays(p.dia).toString("dd/MM/yyyy"),
                     QString::fromUtf8(dadosDoNivel(p.nivel).nome.data(),
                                       static_cast<qsizetype>(dadosDoNivel(p.nivel).nome.size())),
                     p.venceu ? "vitória" : "derrota")
                .arg(p.maosGanhas)
                .arg(p.maosPerdidas);
        for (MaoParaRever& m : maosDaPartida(*maos, partida)) lista.push_back(std::move(m));
    }
    return lista;
}

FrmRevisao::FrmRevisao(QWidget* dono, const Imagens& imagens, std::vector<MaoParaRever> maos,
                       std::size_t inicial)
    : JanelaDeFigura(dono, "frmrevisao", kTamanho), imagens_(imagens), maos_(std::move(maos)) {
    setObjectName("FrmRevisao");
    setWindowTitle("Revisão da mão");
    setAccessibleName("Revisão da mão");
    alca(rotulo("Titulo", "", QRect(0, 0, kTamanho.width(), 36)));
    if (maos_.size() > 1) {
        escolha_ = new QComboBox(this);
        escolha_->setObjectName("Mao");
        escolha_->setGeometry(24, 44, 624, 24);
        escolha_->setAccessibleName("Mão");
        for (const MaoParaRever& m : maos_) escolha_->addItem(m.rotulo);
    } else if (!maos_.empty()) {
        rotulo("Mao", maos_.front().rotulo, QRect(24, 44, 624, 24), 12, true, kClaro,
               Qt::AlignRight | Qt::AlignVCenter);
    }
    rotulo("Maquina", "Máquina", QRect(kFilaLeft, 80, 200, 18), 12, true, kOuro);
    rotulo("Voce", "Você", QRect(kFilaLeft, 208, 200, 18), 12, true, kOuro);
    rotulo("Descarte", "Descarte", QRect(kPilhaLeft, 80, 120, 18), 12, true, kOuro);
    texto_ = rotulo("Texto", "", QRect(80, 386, 560, 72), 12, false, kClaro,
                    Qt::AlignLeft | Qt::AlignTop);
    texto_->setWordWrap(true);
    resumo_ = rotulo("Resumo", "", QRect(24, 458, 616, 18), 12, true, kOuro);
    anterior_ = comando("Anterior", "◀ Anterior", QRect(24, 488, 100, 22), [this] {
        if (passo_ > 0) vaiPara(passo_ - 1);
    });
    proximo_ =
        comando("Proximo", "Próximo ▶", QRect(130, 488, 100, 22), [this] { vaiPara(passo_ + 1); });
    contador_ =
        rotulo("Contador", "", QRect(240, 488, 200, 22), 12, false, kClaro, Qt::AlignCenter);
    comando("Fechar", "Fechar", QRect(564, 488, 84, 22), [this] {
        accept();
    })->setAlignment(Qt::AlignCenter);
    espera_.setInterval(20);
    connect(&espera_, &QTimer::timeout, this, [this] { recebe(); });
    const std::size_t primeira = std::min(inicial, maos_.empty() ? 0 : maos_.size() - 1);
    if (escolha_) {
        escolha_->setCurrentIndex(static_cast<int>(primeira));
        connect(escolha_, &QComboBox::currentIndexChanged, this,
                [this](int i) { escolhe(static_cast<std::size_t>(std::max(i, 0))); });
    }
    escolhe(primeira);
    vigiaTeclas();
    centraNoDono(*this);
}

FrmRevisao::~FrmRevisao() {
    if (calculo_.valid()) calculo_.wait(); // Forte reads only its own copy: a short wait
}

std::size_t FrmRevisao::passos() const {
    return revisao_ ? revisao_->passos.size() : 0;
}

void FrmRevisao::escolhe(std::size_t mao) {
    if (mao >= maos_.size()) return;
    if (calculo_.valid()) calculo_.wait();
    mao_ = mao;
    // The moves at once; Forte's throws as soon as the worker has them.
    revisao_ = revisa(maos_[mao].registro, false);
    calculo_ =
        std::async(std::launch::async, [r = maos_[mao].registro] { return revisa(r, true); });
    espera_.start();
    resumo_->setText("O Forte está pensando…");
    vaiPara(revisao_ ? revisao_->passos.size() - 1 : 0);
}

void FrmRevisao::recebe() {
    if (calculo_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
    espera_.stop();
    if (auto r = calculo_.get()) revisao_ = std::move(r);
    resumo_->setText(revisao_ ? QString::fromStdString(revisao_->resumo) : QString());
    vaiPara(passo_);
}

void FrmRevisao::vaiPara(std::size_t passo) {
    if (!revisao_ || revisao_->passos.empty()) {
        texto_->setText("Esta mão não pode ser revista.");
        return;
    }
    passo_ = std::min(passo, revisao_->passos.size() - 1);
    const PassoDaRevisao& p = revisao_->passos[passo_];
    texto_->setText(QString::fromStdString(p.texto));
    contador_->setText(QString("Passo %1 de %2").arg(passo_ + 1).arg(revisao_->passos.size()));
    anterior_->habilita(passo_ > 0);
    proximo_->habilita(passo_ + 1 < revisao_->passos.size());
    const QString descricao = QString::fromStdString(p.descricao);
    if (accessibleDescription() != descricao) {
        setAccessibleDescription(descricao);
        QAccessibleEvent e(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&e);
    }
    update();
}

bool FrmRevisao::tecla(int key) {
    switch (key) {
    case Qt::Key_Left:
        if (passo_ > 0) vaiPara(passo_ - 1);
        return true;
    case Qt::Key_Right:
        vaiPara(passo_ + 1);
        return true;
    case Qt::Key_Home:
        vaiPara(0);
        return true;
    case Qt::Key_End:
        vaiPara(passos());
        return true;
    case Qt::Key_Escape:
        reject();
        return true;
    default:
        return false;
    }
}

void FrmRevisao::desenhaCartas(QPainter& p, const std::vector<Carta>& cartas, int left, int top,
                               int passo, std::optional<Carta> marcada) const {
    for (std::size_t i = 0; i < cartas.size(); ++i) {
        const Carta c = cartas[i];
        const QRect lugar(left + passo * static_cast<int>(i), top, kCartaL, kCartaA);
        p.drawPixmap(lugar, imagens_.recortada(figuraDaFace(c.naipe, c.valor)));
        if (marcada && c == *marcada) {
            p.setPen(QPen(kOuro, 3));
            p.setBrush(Qt::NoBrush);
            p.drawRoundedRect(lugar.adjusted(-1, -1, 1, 1), 5, 5);
            marcada.reset(); // one copy marked
        }
    }
}

void FrmRevisao::paintEvent(QPaintEvent* e) {
    JanelaDeFigura::paintEvent(e);
    if (!revisao_ || revisao_->passos.empty()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.setRenderHint(QPainter::Antialiasing, true);
    const double f = static_cast<double>(width()) / kTamanho.width();
    p.scale(f, f);
    imagens_.paraARazao(devicePixelRatioF() * f);
    const PassoDaRevisao& passo = revisao_->passos[passo_];
    const EstadoDaMao& e2 = passo.estado;
    // The card this move brought into a hand stands marked there.
    std::optional<Carta> jogTomada, macTomada;
    if (passo.lance) (passo.lance->lado == Lado::Jog ? jogTomada : macTomada) = passo.lance->tomada;
    desenhaCartas(p, e2.mac, kFilaLeft, kTopoMaquina, kPassoDaFila, macTomada);
    desenhaCartas(p, e2.jog, kFilaLeft, kTopoJogador, kPassoDaFila, jogTomada);
    if (e2.topo) desenhaCartas(p, {*e2.topo}, kPilhaLeft, kTopoMaquina, 0, std::nullopt);
    p.setPen(kClaro);
    QFont fonte = font();
    fonte.setPixelSize(12);
    fonte.setBold(true);
    p.setFont(fonte);
    p.setPen(kOuro);
    p.drawText(QRect(kPilhaLeft, 208, 124, 18), Qt::AlignLeft | Qt::AlignVCenter,
               QString("Monte: %1").arg(e2.monte.size()));
    const std::size_t n = std::min(kProximasDoMonte, e2.monte.size());
    // The next card drawn lies on top, at the right.
    for (std::size_t i = n; i-- > 0;)
        desenhaCartas(p, {e2.monte[i]}, kPilhaLeft + kPassoDoMonte * static_cast<int>(n - 1 - i),
                      kTopoJogador, 0, std::nullopt);
    if (passo.forte) {
        const Carta c = passo.forte->doForte;
        p.drawPixmap(QRect(kForte, QSize(kMiniL, kMiniA)),
                     imagens_.recortada(figuraDaFace(c.naipe, c.valor)));
        fonte.setPixelSize(10);
        p.setFont(fonte);
        p.drawText(QRect(kForte.x() - 8, kForte.y() - 20, kMiniL + 16, 16), Qt::AlignCenter,
                   "Forte");
    }
}

} // namespace corvina

#include "players/qt/janela_de_figura.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <cmath>

#include "midia/janelas_figuras.h"
#include "players/qt/comando_acessivel.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
inline constexpr int kTwipsPorPixel = 15;
const QColor kComando(245, 227, 162);
const QColor kDesabilitado(64, 64, 64);

QFont fonte(int px, bool negrito) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(px);
    f.setBold(negrito);
    return f;
}

void pinta(QLabel* l, QColor cor) {
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, cor);
    l->setPalette(p);
}
} // namespace

Comando::Comando(const QString& texto, QWidget* pai, std::function<void()> aoClicar)
    : QLabel(pai), aoClicar_(std::move(aoClicar)) {
    // The text comes in only now: setting it asks for the label's accessible face, which must
    // be a command's, not a plain label's, and is kept for the label's life.
    instalaComandoAcessivel();
    setText(texto);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    pinta(this, kComando);
}

void Comando::aciona() {
    if (isEnabled() && aoClicar_) aoClicar_();
}

void Comando::keyPressEvent(QKeyEvent* e) {
    // The window has seen the key first: Enter and Escape keep the meaning it gives them.
    if (e->key() == Qt::Key_Space || e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        aciona();
        return e->accept();
    }
    QLabel::keyPressEvent(e);
}

void Comando::focusInEvent(QFocusEvent* e) {
    focoDoTeclado_ = e->reason() == Qt::TabFocusReason || e->reason() == Qt::BacktabFocusReason;
    QLabel::focusInEvent(e);
    update();
}

void Comando::focusOutEvent(QFocusEvent* e) {
    focoDoTeclado_ = false;
    QLabel::focusOutEvent(e);
    update();
}

void Comando::paintEvent(QPaintEvent* e) {
    QLabel::paintEvent(e);
    if (!hasFocus() || !focoDoTeclado_) return;
    QPainter p(this);
    p.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Comando::habilita(bool sim) {
    setEnabled(sim);
    setCursor(sim ? Qt::PointingHandCursor : Qt::ArrowCursor);
    pinta(this, sim ? kComando : kDesabilitado);
}

void Comando::mousePressEvent(QMouseEvent* e) {
    pressionado_ = e->button() == Qt::LeftButton;
}

void Comando::mouseReleaseEvent(QMouseEvent* e) {
    // A click is a press and a release on the same command.
    const bool clique =
        pressionado_ && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint());
    pressionado_ = false;
    if (clique) aciona();
}

JanelaDeFigura::JanelaDeFigura(QWidget* dono, const char* figura, QSize tamanho)
    : QDialog(dono, Qt::Dialog | Qt::FramelessWindowHint), figura_(figura) {
    setFixedSize(tamanho);
    setModal(true);
    setFont(fonte(12, false));
}

namespace {
double escalaDasJanelas = 1.0;
} // namespace

void JanelaDeFigura::escala(double fator) {
    escalaDasJanelas = fator;
}

double JanelaDeFigura::escala() {
    return escalaDasJanelas;
}

void JanelaDeFigura::setVisible(bool visivel) {
    // Laid out once, at the scale of the moment it first shows, around the same centre.
    if (visivel && escalada_ == 1.0 && escalaDasJanelas != 1.0) aplicaEscala(escalaDasJanelas);
    QDialog::setVisible(visivel);
}

void JanelaDeFigura::aplicaEscala(double fator) {
    escalada_ = fator;
    escalaAJanela(*this, fator);
}

void escalaAJanela(QWidget& janela, double fator) {
    const auto vezes = [fator](int n) { return static_cast<int>(std::lround(n * fator)); };
    const auto cresce = [&](QWidget* w) {
        QFont f = w->font();
        if (f.pixelSize() > 0)
            f.setPixelSize(vezes(f.pixelSize()));
        else if (f.pointSizeF() > 0)
            f.setPointSizeF(f.pointSizeF() * fator);
        w->setFont(f);
    };
    cresce(&janela);
    for (QWidget* w : janela.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (w->isWindow()) continue;
        const QRect g = w->geometry();
        w->setGeometry(vezes(g.x()), vezes(g.y()), vezes(g.width()), vezes(g.height()));
        // A part with a style sheet keeps the font it was polished with unless given one.
        if (w->testAttribute(Qt::WA_SetFont))
            cresce(w);
        else
            w->setFont(janela.font());
    }
    const QPoint centro = janela.geometry().center();
    janela.setFixedSize(vezes(janela.width()), vezes(janela.height()));
    janela.move(centro - QPoint(janela.width() / 2, janela.height() / 2));
}

QRect JanelaDeFigura::emPixels(int left, int top, int width, int height) {
    return {left / kTwipsPorPixel, top / kTwipsPorPixel, width / kTwipsPorPixel,
            height / kTwipsPorPixel};
}

QLabel* JanelaDeFigura::rotulo(const char* nome, const QString& texto, QRect lugar, int px,
                               bool negrito, QColor cor, Qt::Alignment alinhamento) {
    auto* l = new QLabel(texto, this);
    l->setObjectName(nome);
    l->setGeometry(lugar);
    l->setFont(fonte(px, negrito));
    l->setAlignment(alinhamento);
    pinta(l, cor);
    return l;
}

Comando* JanelaDeFigura::comando(const char* nome, const QString& texto, QRect lugar,
                                 std::function<void()> aoClicar, int px, bool negrito) {
    auto* c = new Comando(texto, this, std::move(aoClicar));
    c->setObjectName(nome);
    c->setGeometry(lugar);
    c->setFont(fonte(px, negrito));
    return c;
}

void JanelaDeFigura::alca(QWidget* parte) {
    alca_ = parte;
    parte->installEventFilter(this);
}

void JanelaDeFigura::vigiaTeclas() {
    for (QWidget* w : findChildren<QWidget*>()) w->installEventFilter(this);
}

void JanelaDeFigura::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (ativada_) return;
    ativada_ = true;
    QTimer::singleShot(0, this, [this] { primeiraAtivacao(); });
}

void JanelaDeFigura::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawPixmap(rect(), figuraDaJanela(figura_, devicePixelRatioF() * escalada_));
}

void JanelaDeFigura::keyPressEvent(QKeyEvent* e) {
    // Only the keys a window names do anything: Escape and Enter don't close it by themselves.
    if (!tecla(e->key())) e->accept();
}

bool JanelaDeFigura::eventFilter(QObject* alvo, QEvent* e) {
    if (e->type() == QEvent::KeyPress && alvo != this) {
        const int key = static_cast<QKeyEvent*>(e)->key();
        const auto* c = dynamic_cast<Comando*>(alvo);
        if (c && c->focoDoTeclado() && (key == Qt::Key_Return || key == Qt::Key_Enter))
            return false; // a command reached by Tab answers Enter itself
        return tecla(key);
    }
    if (alvo == alca_ && e->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(e)->button() == Qt::LeftButton) {
        moveJanela(*this);
        return true;
    }
    return QDialog::eventFilter(alvo, e);
}

} // namespace corvina

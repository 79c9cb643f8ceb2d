#include "shell/janela_mesa.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "core/ajustes.h"
#include "core/ativacao.h"
#include "core/pecas.h"
#include "core/textos.h"
#include "players/qt/janela_de_figura.h"
#include "players/qt/lugar_da_janela.h"
#include "shell/ajuda.h"
#include "shell/lugares_da_mesa.h"
#include "shell/pintura_da_mesa.h"
#include "shell/teclas_da_mesa.h"
#include "table/arraste.h"
#include "table/tamanho_da_mesa.h"
#include "table/teclado.h"

namespace corvina {

namespace {
Qt::CursorShape cursorDe(Ponteiro p) {
    switch (p) {
    case Ponteiro::proibido:
        return Qt::ForbiddenCursor;
    case Ponteiro::mao:
        return Qt::PointingHandCursor;
    default:
        return Qt::ArrowCursor;
    }
}
} // namespace

JanelaMesa::JanelaMesa(Jogo& jogo, VistaQt& vista, const Imagens& imagens)
    : jogo_(jogo), vista_(vista), imagens_(imagens), condutor_(jogo, vista) {
    setWindowTitle("Corvina");
    setWindowFlags(Qt::FramelessWindowHint | Qt::Window);
    // The size chosen, as far as this screen allows; on a first start, the largest that fits.
    const QScreen* tela = screen();
    const QRect livre =
        tela ? tela->availableGeometry() : QRect(0, 0, kLarguraDaMesa, kAlturaDaMesa);
    jogo_.modulo.tamanhoDaMesa = tamanhoDaMesa(
        vista_.leAjuste(chaveBase(), ajuste::kTamanhoDaMesa, ""), livre.width(), livre.height());
    aplicaTamanho(jogo_.modulo.tamanhoDaMesa);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    instalaMesaAcessivel(); // main installs it first; a window made elsewhere (tests) too
    vista_.tela(this);
    vista_.aoMudar([this] { leitores_.avisa(*this); });
    condutor_.aoMudar = [this] { mudou(); };
    imagens_.usaQuatroCores(
        booleanoDoTexto(vista_.leAjuste(chaveBase(), ajuste::kQuatroCores, "False")));
}

JanelaMesa::~JanelaMesa() {
    // A move or a thought still under way is dropped before what it reads goes away.
    condutor_.cancela();
    vista_.terminaPensamentos();
    vista_.tela(nullptr);
    vista_.aoMudar({});
}

void JanelaMesa::mudou() {
    // At rest the table waits for the player: what it holds now is kept.
    if (!condutor_.ocupado() && !condutor_.arrastando() && jogo_.mesa.jaAtivada)
        vista_.guardaPartida();
    if (jogo_.modulo.tamanhoDaMesa != moldura_.tamanho())
        aplicaTamanho(jogo_.modulo.tamanhoDaMesa); // chosen in the options
    update();
    leitores_.avisa(*this);
}

bool JanelaMesa::joga(const Jogada& c) {
    const bool feito = condutor_.executa(c) == Recusa::Nenhuma;
    mudou();
    return feito;
}

void JanelaMesa::trocaBaralhoDeCores() {
    const bool sim = !imagens_.quatroCores();
    imagens_.usaQuatroCores(sim);
    vista_.gravaAjuste(chaveBase(), ajuste::kQuatroCores, sim ? "True" : "False");
    update();
}

std::vector<ItemDaLeitura> JanelaMesa::leitura() const {
    return leituraDaMesa(jogo_, vista_.cena(), condutor_.dica(), !condutor_.ocupado());
}

QRect JanelaMesa::retanguloDaLeitura(const ItemDaLeitura& item) const {
    // The labels are painted, not sprites: their places are the painter's.
    QRect r;
    switch (item.papel) {
    case Papel::Mensagens:
        r = lugar::kLabel1.united(lugar::kStatus);
        break;
    case Papel::Placar:
        r = lugar::kPlacar1.translated(lugar::kPainel)
                .united(lugar::kPlacar2.translated(lugar::kPainel));
        break;
    case Papel::Ordenar:
        r = lugar::kLabel4;
        break;
    case Papel::Dica:
        r = lugar::kDica;
        break;
    default:
        for (const Peca p : item.pecas) r = r.united(lugarDa(p));
        break;
    }
    return moldura_.paraJanela(r, size());
}

QRect JanelaMesa::lugarDa(Peca peca) const {
    return retanguloDaPeca(vista_.cena(), peca);
}

QRect JanelaMesa::retanguloDa(Peca peca) const {
    return moldura_.paraJanela(lugarDa(peca), size());
}

QPoint JanelaMesa::naMesa(const QMouseEvent* e) const {
    return moldura_.paraMesa(e->position(), size()).toPoint();
}

void JanelaMesa::aplicaTamanho(int porcento) {
    moldura_.tamanho(porcento);
    // Beside a large table on a screen the desktop left unscaled, the small windows grow too.
    JanelaDeFigura::escala(porcento >= 150 && devicePixelRatioF() == 1.0 ? porcento / 100.0 : 1.0);
    if (!isFullScreen()) {
        setFixedSize(moldura_.janela());
        ficaNaTela(*this);
    }
    update();
}

void JanelaMesa::alternaTelaCheia() {
    if (isFullScreen()) {
        moldura_.preenche(false);
        showNormal();
        setFixedSize(moldura_.janela());
        move(ondeEstava_);
        ficaNaTela(*this);
    } else {
        moldura_.preenche(true);
        ondeEstava_ = pos();
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        // The whole screen also where no window manager answers the request.
        if (const QScreen* tela = screen()) setGeometry(tela->geometry());
        showFullScreen();
    }
}

void JanelaMesa::paintEvent(QPaintEvent*) {
    // The pictures for the screen the window is on now and the table's size: the set made for
    // twice the size as soon as either enlarges it.
    imagens_.paraARazao(devicePixelRatioF() * moldura_.fatorEm(size()));
    QPainter p(this);
    if (size() != moldura_.janela()) p.fillRect(rect(), lugar::kFeltro);
    p.setTransform(moldura_.paraJanela(size()));
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    pintaMesa(p, {jogo_, vista_.cena(), imagens_, condutor_.dica()});
}

void JanelaMesa::abreNivel() {
    if (!livreParaJanelas()) return; // the level changes between moves, never inside one
    vista_.abreJanela(Janela::FrmNivel);
    update();
}

void JanelaMesa::pedeDica() {
    condutor_.pedeDica();
    mudou();
}

std::optional<Peca> JanelaMesa::spriteEm(QPoint ponto) const {
    const auto& ordem = vista_.cena().ordem();
    for (auto it = ordem.rbegin(); it != ordem.rend(); ++it) {
        const Sprite& s = vista_.cena()[*it];
        if (!s.Visible || !lugarDa(*it).contains(ponto)) continue;
        // A sprite that is not enabled gets no mouse events; nor does what lies under it.
        if (!s.Enabled) return std::nullopt;
        return *it;
    }
    return std::nullopt;
}

JanelaMesa::Toque JanelaMesa::tocado(QPoint p) const {
    if (const auto s = spriteEm(p)) return {Alvo::Sprite, *s, 0};
    const Sprite& ordenar = vista_.cena()[peca::kLabel4];
    if (lugar::kLabel4.contains(p) && ordenar.Visible && ordenar.Enabled) return {Alvo::Ordenar};
    for (int i = 0; i < 7; ++i)
        if (lugar::kBotoes[i].contains(p)) return {Alvo::Botao, Peca{Parte::vazio}, i + 1};
    if (lugar::kMinimizar.contains(p)) return {Alvo::Minimizar};
    if (lugar::kNivel.contains(p)) return {Alvo::Nivel};
    if (lugar::kDica.contains(p)) return {Alvo::Dica};
    if (lugar::kQuatroCores.contains(p)) return {Alvo::QuatroCores};
    if (lugar::kSobre.contains(p)) return {Alvo::Sobre};
    if (lugar::kFaixaDoTitulo.contains(p)) return {Alvo::Titulo};
    return {};
}

QPointF JanelaMesa::dentroDoMover(QPoint p) const {
    const Sprite& m = vista_.cena()[peca::kPicmover];
    return {(p.x() - lugar::kPainel.x()) * kTwipsPorPixel - m.Left,
            (p.y() - lugar::kPainel.y()) * kTwipsPorPixel - m.Top};
}

void JanelaMesa::mouseMoveEvent(QMouseEvent* e) {
    const QPoint p = naMesa(e);
    if (arrastandoMover_) {
        if (e->buttons() & Qt::LeftButton) {
            const QPointF x = dentroDoMover(p);
            condutor_.arrasta(static_cast<float>(x.x()), static_cast<float>(x.y()));
        }
        return update();
    }
    const Toque t = tocado(p);
    vista_.Premover(
        static_cast<int16>(t.alvo == Alvo::Botao && t.botao <= lugar::kBotoesAcesos ? t.botao : 0));
    if (t.alvo == Alvo::Sprite && t.peca.parte == Parte::cj) condutor_.sobre(t.peca.indice);
    const Toque depois = tocado(p); // the mover may now lie under the mouse
    if (depois.alvo == Alvo::Sprite)
        setCursor(cursorDe(vista_.cena()[depois.peca].MousePointer));
    else
        setCursor(depois.alvo == Alvo::Nada || depois.alvo == Alvo::Titulo
                      ? Qt::ArrowCursor
                      : Qt::PointingHandCursor);
    update();
}

void JanelaMesa::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const QPoint p = naMesa(e);
    pressionado_ = tocado(p);
    if (pressionado_.alvo == Alvo::Sprite && pressionado_.peca == peca::kPicmover) {
        const QPointF x = dentroDoMover(p);
        arrastandoMover_ =
            condutor_.pega(static_cast<float>(x.x()), static_cast<float>(x.y())) == Recusa::Nenhuma;
        mudou();
    } else if (pressionado_.alvo == Alvo::Titulo && !isFullScreen()) {
        moveJanela(*this); // the title strip drags the borderless window
    }
}

void JanelaMesa::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    if (arrastandoMover_) {
        arrastandoMover_ = false;
        joga({Acao::Soltar});
        return;
    }
    // A click is a press and a release on the same part.
    if (tocado(naMesa(e)) == pressionado_) clique(pressionado_);
    pressionado_ = {};
}

bool JanelaMesa::livreParaJanelas() {
    if (!condutor_.ocupado()) {
        condutor_.largaArraste(); // a card held by the mouse goes back before a window opens
        return true;
    }
    if (jogo_.modulo.tocarSom) vista_.tocaSom(som::kNegado, false);
    return false;
}

void JanelaMesa::clique(const Toque& t) {
    switch (t.alvo) {
    case Alvo::Sprite:
        if (t.peca == peca::kCostas2) joga({Acao::Comprar});
        if (t.peca == peca::kDiscartado) joga({Acao::PegarDescarte});
        break;
    case Alvo::Ordenar:
        joga({Acao::Ordenar});
        break;
    case Alvo::Botao:
        // Closing is never refused; the other commands open windows and wait for the move.
        if (t.botao >= kBotaoSair || livreParaJanelas())
            atende(Btn_Click(jogo_, static_cast<int>(t.botao)));
        break;
    case Alvo::Minimizar:
        showMinimized();
        break;
    case Alvo::Sobre:
        if (livreParaJanelas()) vista_.abreJanela(Janela::FrmSobre);
        break;
    case Alvo::Nivel:
        abreNivel();
        break;
    case Alvo::Dica:
        pedeDica();
        break;
    case Alvo::QuatroCores:
        trocaBaralhoDeCores();
        break;
    default:
        break;
    }
    condutor_.assenta();
    mudou();
}

bool JanelaMesa::event(QEvent* e) {
    const bool feito = QWidget::event(e);
    if (e->type() == QEvent::FocusIn) leitores_.avisa(*this);
    return feito;
}

bool JanelaMesa::focusNextPrevChild(bool proxima) {
    // Tab walks the player's row: the table has no other place to go.
    teclaNaMesa(condutor_, jogo_, vista_, proxima ? Tecla::Direita : Tecla::Esquerda);
    mudou();
    return true;
}

void JanelaMesa::keyPressEvent(QKeyEvent* e) {
    const bool soALetra = e->modifiers() == Qt::NoModifier;
    if (e->key() == Qt::Key_F11 || (e->key() == Qt::Key_Escape && isFullScreen()))
        return alternaTelaCheia();
    if (e->key() == kTeclaNivel && soALetra) return abreNivel();
    if (e->key() == kTeclaDica && soALetra) return pedeDica();
    if (e->key() == kTeclaQuatroCores && soALetra) return trocaBaralhoDeCores();
    if (const auto t = teclaDaMesa(*e)) {
        teclaNaMesa(condutor_, jogo_, vista_, *t);
        return mudou();
    }
    if (e->key() >= Qt::Key_0 && e->key() <= Qt::Key_9 &&
        (e->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        const int digito = e->key() - Qt::Key_0;
        condutor_.assenta();
        focaCasa(jogo_, vista_, static_cast<int16>(digito == 0 ? kCasaCompra : digito));
        return mudou();
    }
    if (e->key() < Qt::Key_F1 || e->key() > Qt::Key_F10) return QWidget::keyPressEvent(e);
    const int codigo = kTeclaF1 + (e->key() - Qt::Key_F1);
    const int shift = e->modifiers() == Qt::ControlModifier ? kShiftCtrl : 0;
    // The keys that open a window wait for the move under way; the others only change pictures.
    const bool abreJanela = codigo >= kTeclaF2 && codigo <= kTeclaF6;
    if (!abreJanela || livreParaJanelas()) atende(Form_KeyDown(jogo_, codigo, shift));
    condutor_.assenta();
    mudou();
}

void JanelaMesa::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (ativada_) return;
    ativada_ = true;
    // The first activation deals; it runs once the window is on the screen.
    QTimer::singleShot(0, this, [this] {
        Form_Activate(jogo_);
        mudou();
    });
}

void JanelaMesa::atende(PedidoDaTecla pedido) {
    if (pedido == PedidoDaTecla::Fechar) close();
    if (pedido == PedidoDaTecla::Ajuda) iniciaAjuda(); // a help that isn't there: nothing happens
}

void JanelaMesa::closeEvent(QCloseEvent* e) {
    // A move under way (a flight, the machine deciding) ends here, cleanly, with the run.
    condutor_.cancela();
    vista_.terminaPensamentos();
    Form_QueryUnload(jogo_);
    Form_Unload(jogo_);
    e->accept();
    if (encerra_) encerra_();
}

} // namespace corvina

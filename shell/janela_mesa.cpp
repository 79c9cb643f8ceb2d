#include "shell/janela_mesa.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "core/ajustes.h"
#include "core/ativacao.h"
#include "core/compra.h"
#include "core/pecas.h"
#include "players/escolha_de_nivel.h"
#include "players/qt/lugar_da_janela.h"
#include "shell/ajuda.h"
#include "table/arraste.h"
#include "table/comandos.h"
#include "table/ordenar.h"
#include "table/teclado.h"

namespace corvina {

namespace {
// The table panel in the window, and the other places, in pixels (twips / 15).
const QPoint kPainel(21, 123);
const QRect kLabel1(33, 563, 517, 16);
const QRect kStatus(577, 563, 95, 16);
const QRect kLabel4(685, 563, 97, 17);
const QRect kFaixaDoTitulo(0, 0, 676, 73);
const QRect kMinimizar(709, 23, 33, 32);
const QRect kSobre(679, 25, 24, 31);
const QRect kBotoes[] = {{21, 80, 126, 30},  {154, 80, 121, 30}, {282, 80, 121, 30},
                         {409, 80, 122, 30}, {537, 80, 118, 30}, {661, 80, 118, 30},
                         {749, 23, 31, 31}};
// The patch over the status bar's divider, shown outside assisted mode.
const QRect kImgNTrincas(566, 560, 10, 25);
const QColor kBarra(30, 20, 12);
// Labels on the panel, in pixels from its corner.
const QRect kLabel6(122, 299, 531, 15);
const QRect kPlacar1(15, 288, 40, 34), kPlacar2(15, 110, 38, 34);
const QRect kLabel10(114, 311, 20, 15), kLabel11(105, 107, 23, 15);
// Beside the pile, right of it: the opponent's level and the deal, and the hint's command.
const QRect kNivel(591, 290, 176, 36);
const QRect kDica(591, 332, 176, 18);
const QRect kQuatroCores(591, 352, 200, 18); // to 9 pixels off the window's edge
const QColor kOuroDaDica(250, 214, 90);
constexpr int kTeclaNivel = Qt::Key_N, kTeclaDica = Qt::Key_D, kTeclaQuatroCores = Qt::Key_Q;
// The keys of the play: B the stock (baralho), P the pile, O the sort; Enter or Space discards.
constexpr int kTeclaBaralho = Qt::Key_B, kTeclaPilha = Qt::Key_P, kTeclaOrdenar = Qt::Key_O;
const QColor kCorDoFoco(255, 255, 255);

std::optional<Tecla> teclaDaMesa(const QKeyEvent& e) {
    const auto mods = e.modifiers() & ~Qt::KeypadModifier;
    const bool nada = mods == Qt::NoModifier, shift = mods == Qt::ShiftModifier;
    switch (e.key()) {
    case Qt::Key_Left:
        return nada    ? std::optional(Tecla::Esquerda)
               : shift ? std::optional(Tecla::CartaAEsquerda)
                       : std::nullopt;
    case Qt::Key_Right:
        return nada    ? std::optional(Tecla::Direita)
               : shift ? std::optional(Tecla::CartaADireita)
                       : std::nullopt;
    case Qt::Key_Home:
        return nada ? std::optional(Tecla::Primeira) : std::nullopt;
    case Qt::Key_End:
        return nada ? std::optional(Tecla::Ultima) : std::nullopt;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return nada ? std::optional(Tecla::Descartar) : std::nullopt;
    case Qt::Key_Escape:
        return nada ? std::optional(Tecla::Solta) : std::nullopt;
    case kTeclaBaralho:
        return nada ? std::optional(Tecla::Baralho) : std::nullopt;
    case kTeclaPilha:
        return nada ? std::optional(Tecla::Pilha) : std::nullopt;
    case kTeclaOrdenar:
        return nada ? std::optional(Tecla::Ordenar) : std::nullopt;
    default:
        return std::nullopt;
    }
}

int px(float twips) {
    return static_cast<int>(std::floor(twips / kTwipsPorPixel));
}

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
    : jogo_(jogo), vista_(vista), imagens_(imagens) {
    setWindowTitle("Corvina");
    setWindowFlags(Qt::FramelessWindowHint | Qt::Window);
    setFixedSize(800, 600);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    instalaMesaAcessivel(); // main installs it first; a window made elsewhere (tests) too
    vista_.tela(this);
    vista_.aoMudar([this] { leitores_.avisa(*this); });
    imagens_.usaQuatroCores(vista_.leAjuste(chaveBase(), ajuste::kQuatroCores, "False") == "True");
}

void JanelaMesa::trocaBaralhoDeCores() {
    const bool sim = !imagens_.quatroCores();
    imagens_.usaQuatroCores(sim);
    vista_.gravaAjuste(chaveBase(), ajuste::kQuatroCores, sim ? "True" : "False");
    update();
}

std::vector<ItemDaLeitura> JanelaMesa::leitura() const {
    return leituraDaMesa(jogo_, vista_.cena());
}

QRect JanelaMesa::retanguloDaLeitura(const ItemDaLeitura& item) const {
    // The labels are painted, not sprites: their places are the painter's.
    if (item.papel == Papel::Mensagens) return kLabel1.united(kStatus);
    if (item.papel == Papel::Placar)
        return kPlacar1.translated(kPainel).united(kPlacar2.translated(kPainel));
    QRect r;
    for (const Peca p : item.pecas) r = r.united(retanguloDa(p));
    return r;
}

QRect JanelaMesa::retanguloDa(Peca peca) const {
    const Sprite& s = vista_.cena()[peca];
    return QRect(kPainel.x() + px(s.Left), kPainel.y() + px(s.Top), px(s.Width), px(s.Height));
}

void JanelaMesa::paintEvent(QPaintEvent*) {
    // The pictures of the screen the window is on now: 2x on a scaled one.
    imagens_.paraARazao(devicePixelRatioF());
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawPixmap(0, 0, imagens_.mesa());
    const int aceso = jogo_.mesa.botaoAtivo;
    if (aceso >= 1 && aceso <= 6)
        p.drawPixmap(kBotoes[aceso - 1].topLeft(), imagens_.botaoAceso(aceso));
    p.setClipRect(QRect(kPainel, QSize(753, 427)));
    for (const Peca peca : vista_.cena().ordem()) {
        const Sprite& s = vista_.cena()[peca];
        if (!s.Visible || s.Picture == kSemFigura) continue;
        // Cards over cards show what lies below at their corners.
        const QPixmap& figura = s.contorno || peca == peca::kPicmover
                                    ? imagens_.recortada(s.Picture)
                                    : imagens_.da(s.Picture);
        p.drawPixmap(retanguloDa(peca).topLeft(), figura);
    }
    p.setClipping(false);
    desenhaTextos(p);
    desenhaNivelEDica(p);
    desenhaFoco(p);
}

void JanelaMesa::desenhaFoco(QPainter& p) {
    const int16 foco = vista_.cena().foco;
    if (foco < 1 || foco > jogo_.mesa.qtdJog || !vista_.cena()[peca::cj(foco)].Visible) return;
    p.resetTransform();
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(kCorDoFoco, 2, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(retanguloDa(peca::cj(foco))).adjusted(-3, -3, 3, 3), 6, 6);
}

void JanelaMesa::desenhaNivelEDica(QPainter& p) {
    p.resetTransform(); // window pixels, whatever the labels before left
    const Module1& g = jogo_.modulo;
    QFont f("DejaVu Sans");
    f.setPixelSize(12);
    f.setBold(true);
    p.setFont(f);
    p.setPen(kOuroDaDica);
    const QRect linha1(kNivel.x(), kNivel.y(), kNivel.width(), kNivel.height() / 2);
    p.drawText(linha1, Qt::AlignLeft | Qt::AlignVCenter,
               QString::fromStdString(legendaDoNivel(g.nivel)));
    f.setBold(false);
    p.setFont(f);
    p.setPen(QColor(240, 230, 200));
    p.drawText(linha1.translated(0, linha1.height()), Qt::AlignLeft | Qt::AlignVCenter,
               QString::fromStdString(legendaDaDistribuicao(g.nivel, g.distribuicaoJusta)));
    f.setUnderline(true);
    p.setFont(f);
    p.drawText(kDica, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Dica (D)"));
    p.drawText(kQuatroCores, Qt::AlignLeft | Qt::AlignVCenter,
               QString(imagens_.quatroCores() ? QChar(0x2611) : QChar(0x2610)) +
                   QStringLiteral(" Baralho de quatro cores (Q)"));
    const std::optional<Dica> d = dicaAtual();
    if (!d) return;
    // The part to play ringed in gold, and the advice on the warning's line when it is free.
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(kOuroDaDica, 3));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(retanguloDa(d->peca())).adjusted(-2.5, -2.5, 2.5, 2.5), 6, 6);
    if (!vista_.cena().textos.avisoVisivel) {
        f.setUnderline(false);
        f.setBold(true);
        p.setFont(f);
        p.drawText(kLabel6.translated(kPainel), Qt::AlignCenter, QString::fromStdString(d->texto));
    }
}

std::vector<int16> JanelaMesa::assinaturaDaMesa() const {
    const Mesa& m = jogo_.mesa;
    std::vector<int16> a{m.qtdJog, m.qtdBaralho, jogo_.modulo.qtdDescarte, m.discarteValor,
                         m.discarteNaipe};
    for (int i = 1; i <= m.qtdJog; ++i) a.insert(a.end(), {m.jogValor[i], m.jogNaipe[i]});
    return a;
}

std::optional<Dica> JanelaMesa::dicaAtual() const {
    if (!dica_ || assinaturaDaDica_ != assinaturaDaMesa() || jogo_.maosEmJogo) return std::nullopt;
    return dica_;
}

void JanelaMesa::abreNivel() {
    if (jogo_.maosEmJogo) return; // the level changes between turns, never inside one
    vista_.abreJanela(Janela::FrmNivel);
    update();
}

void JanelaMesa::pedeDica() {
    if (!nivel_) return;
    Dica d = dicaDoJogador(jogo_, *nivel_);
    if (d.tipo == Dica::Tipo::Nenhuma) return;
    dica_ = std::move(d);
    assinaturaDaDica_ = assinaturaDaMesa();
    update();
}

void JanelaMesa::desenhaTextos(QPainter& p) {
    const Textos& t = vista_.cena().textos;
    QFont f("DejaVu Sans");
    f.setPixelSize(12);
    p.setFont(f);
    p.setPen(QColor(240, 230, 200));
    p.drawText(kLabel1, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(t.prompt));
    if (t.imgNTrincasVisivel) p.fillRect(kImgNTrincas, kBarra);
    if (t.statusVisivel) {
        p.setPen(QColor(250, 214, 90));
        p.drawText(kStatus, Qt::AlignCenter, QString::fromStdString(t.status));
    }
    if (vista_.cena()[peca::kLabel4].Visible) {
        p.setPen(QColor(240, 240, 240));
        f.setBold(true);
        p.setFont(f);
        p.drawText(kLabel4, Qt::AlignCenter, QString::fromStdString(t.label4));
    }
    p.translate(kPainel);
    if (t.avisoVisivel) {
        f.setBold(true);
        p.setFont(f);
        p.setPen(QColor(255, 236, 120));
        p.drawText(kLabel6, Qt::AlignCenter, QString::fromStdString(t.aviso));
    }
    QFont grande("DejaVu Sans");
    grande.setPixelSize(26);
    grande.setBold(true);
    p.setFont(grande);
    p.setPen(QColor(250, 250, 240));
    if (vista_.cena()[peca::kPlacar1].Visible)
        p.drawText(kPlacar1, Qt::AlignCenter, QString::fromStdString(t.placar1));
    if (vista_.cena()[peca::kPlacar2].Visible)
        p.drawText(kPlacar2, Qt::AlignCenter, QString::fromStdString(t.placar2));
    if (jogo_.mesa.mostraContagem) {
        f.setBold(false);
        p.setFont(f);
        p.setPen(QColor(255, 255, 255));
        p.drawText(kLabel10, Qt::AlignCenter, QString::fromStdString(t.label10));
        p.drawText(kLabel11, Qt::AlignCenter, QString::fromStdString(t.label11));
    }
}

std::optional<Peca> JanelaMesa::spriteEm(QPoint ponto) const {
    const auto& ordem = vista_.cena().ordem();
    for (auto it = ordem.rbegin(); it != ordem.rend(); ++it) {
        const Sprite& s = vista_.cena()[*it];
        if (!s.Visible || !retanguloDa(*it).contains(ponto)) continue;
        // A sprite that is not enabled gets no mouse events; nor does what lies under it.
        if (!s.Enabled) return std::nullopt;
        return *it;
    }
    return std::nullopt;
}

JanelaMesa::Toque JanelaMesa::tocado(QPoint p) const {
    if (const auto s = spriteEm(p)) return {Alvo::Sprite, *s, 0};
    if (kLabel4.contains(p) && vista_.cena()[peca::kLabel4].Visible &&
        vista_.cena()[peca::kLabel4].Enabled)
        return {Alvo::Ordenar};
    for (int i = 0; i < 7; ++i)
        if (kBotoes[i].contains(p)) return {Alvo::Botao, Peca{Parte::vazio}, i + 1};
    if (kMinimizar.contains(p)) return {Alvo::Minimizar};
    if (kNivel.contains(p)) return {Alvo::Nivel};
    if (kDica.contains(p)) return {Alvo::Dica};
    if (kQuatroCores.contains(p)) return {Alvo::QuatroCores};
    if (kSobre.contains(p)) return {Alvo::Sobre};
    if (kFaixaDoTitulo.contains(p)) return {Alvo::Titulo};
    return {};
}

QPointF JanelaMesa::dentroDoMover(QPoint p) const {
    const Sprite& m = vista_.cena()[peca::kPicmover];
    return {(p.x() - kPainel.x()) * kTwipsPorPixel - m.Left,
            (p.y() - kPainel.y()) * kTwipsPorPixel - m.Top};
}

void JanelaMesa::mouseMoveEvent(QMouseEvent* e) {
    const QPoint p = e->position().toPoint();
    if (arrastandoMover_) {
        if (e->buttons() & Qt::LeftButton) {
            const QPointF x = dentroDoMover(p);
            Picmover_MouseMove(jogo_, vista_, kBotaoEsquerdo, static_cast<float>(x.x()),
                               static_cast<float>(x.y()));
        }
        return;
    }
    const Toque t = tocado(p);
    vista_.Premover(static_cast<int16>(t.alvo == Alvo::Botao && t.botao <= 6 ? t.botao : 0));
    if (t.alvo == Alvo::Sprite && t.peca.parte == Parte::cj)
        cj_MouseMove(jogo_, vista_, t.peca.indice);
    const Toque depois = tocado(p); // the mover may now lie under the mouse
    if (depois.alvo == Alvo::Sprite)
        setCursor(cursorDe(vista_.cena()[depois.peca].MousePointer));
    else
        setCursor(depois.alvo == Alvo::Nada || depois.alvo == Alvo::Titulo
                      ? Qt::ArrowCursor
                      : Qt::PointingHandCursor);
}

void JanelaMesa::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const QPoint p = e->position().toPoint();
    pressionado_ = tocado(p);
    if (pressionado_.alvo == Alvo::Sprite && pressionado_.peca == peca::kPicmover) {
        arrastandoMover_ = true;
        const QPointF x = dentroDoMover(p);
        Picmover_MouseDown(jogo_, vista_, kBotaoEsquerdo, static_cast<float>(x.x()),
                           static_cast<float>(x.y()));
    } else if (pressionado_.alvo == Alvo::Titulo) {
        moveJanela(*this); // the title strip drags the borderless window
    }
}

void JanelaMesa::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    if (arrastandoMover_) {
        arrastandoMover_ = false;
        Picmover_MouseUp(jogo_, vista_, kBotaoEsquerdo);
        return;
    }
    const Toque t = tocado(e->position().toPoint());
    // A click is a press and a release on the same part.
    if (t.alvo == pressionado_.alvo && t.peca == pressionado_.peca && t.botao == pressionado_.botao)
        clique(t);
    pressionado_ = {};
}

void JanelaMesa::clique(const Toque& t) {
    switch (t.alvo) {
    case Alvo::Sprite:
        if (t.peca == peca::kCostas2) costas2_Click(jogo_);
        if (t.peca == peca::kDiscartado) Discartado_Click(jogo_);
        break;
    case Alvo::Ordenar:
        Label4_Click(jogo_);
        break;
    case Alvo::Botao:
        atende(Btn_Click(jogo_, static_cast<int>(t.botao)));
        break;
    case Alvo::Minimizar:
        showMinimized();
        break;
    case Alvo::Sobre:
        vista_.abreJanela(Janela::FrmSobre);
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
}

bool JanelaMesa::event(QEvent* e) {
    const bool feito = QWidget::event(e);
    // A move of the player ends with the machine's turn; only then is the table still.
    const auto tipo = e->type();
    if (tipo == QEvent::KeyPress || tipo == QEvent::MouseButtonRelease || tipo == QEvent::FocusIn)
        leitores_.avisa(*this);
    return feito;
}

bool JanelaMesa::focusNextPrevChild(bool proxima) {
    // Tab walks the player's row: the table has no other place to go.
    teclaNaMesa(jogo_, vista_, proxima ? Tecla::Direita : Tecla::Esquerda);
    update();
    return true;
}

void JanelaMesa::keyPressEvent(QKeyEvent* e) {
    const bool soALetra = e->modifiers() == Qt::NoModifier;
    if (e->key() == kTeclaNivel && soALetra) return abreNivel();
    if (e->key() == kTeclaDica && soALetra) return pedeDica();
    if (e->key() == kTeclaQuatroCores && soALetra) return trocaBaralhoDeCores();
    if (const auto t = teclaDaMesa(*e)) {
        teclaNaMesa(jogo_, vista_, *t);
        return update();
    }
    if (e->key() >= Qt::Key_0 && e->key() <= Qt::Key_9 &&
        (e->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        const int digito = e->key() - Qt::Key_0;
        focaCasa(jogo_, vista_, static_cast<int16>(digito == 0 ? kCasaCompra : digito));
        return update();
    }
    if (e->key() < Qt::Key_F1 || e->key() > Qt::Key_F10) return QWidget::keyPressEvent(e);
    const int codigo = kTeclaF1 + (e->key() - Qt::Key_F1);
    const int shift = e->modifiers() == Qt::ControlModifier ? kShiftCtrl : 0;
    atende(Form_KeyDown(jogo_, codigo, shift));
    update();
}

void JanelaMesa::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (ativada_) return;
    ativada_ = true;
    // The first activation deals; it runs once the window is on the screen.
    QTimer::singleShot(0, this, [this] { Form_Activate(jogo_); });
}

void JanelaMesa::atende(PedidoDaTecla pedido) {
    if (pedido == PedidoDaTecla::Fechar) close();
    if (pedido == PedidoDaTecla::Ajuda) iniciaAjuda(); // a help that isn't there: nothing happens
}

void JanelaMesa::closeEvent(QCloseEvent* e) {
    Form_QueryUnload(jogo_);
    Form_Unload(jogo_);
    e->accept();
    // Whatever was under way, a card's flight or the machine's turn, ends here with the run.
    if (encerra_) encerra_();
}

} // namespace corvina

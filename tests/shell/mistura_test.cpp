// The live table window under mixed input: mouse gestures, keys, hints and the screen reader's
// actions in random order, with flights that take time and a machine that thinks on a worker,
// so that input arrives in the middle of moves. After every event the pictures must be the game:
// each slot of the row shows its card, the moving sprite stands on the card it stands for, no
// input changes the game while a move is under way, and the card that reaches the pile is the
// one the player saw in focus, dropped or acted on.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QElapsedTimer>
#include <chrono>
#include <random>
#include <thread>
#include <tuple>

#include "apoio/mesa_na_tela.h"
#include "machine/classico.h"
#include "shell/lugares_da_mesa.h"

namespace corvina {
namespace {

// Clássico, slowly: its thought outlasts several of the test's events.
class NivelLento : public Nivel {
  public:
    explicit NivelLento(unsigned semente) : sorte_(semente) {}
    bool pegaDescarte(const VisaoDoNivel& v) override {
        dorme();
        return classico_.pegaDescarte(v);
    }
    int16 descarte(const VisaoDoNivel& v, bool doDescarte) override {
        dorme();
        return classico_.descarte(v, doDescarte);
    }

  private:
    void dorme() {
        std::this_thread::sleep_for(
            std::chrono::milliseconds(std::uniform_int_distribution(1, 12)(sorte_)));
    }
    Classico classico_;
    std::mt19937 sorte_; // the worker's own: the level is never asked twice at once
};

// What the player's input could change of the game.
auto estadoDe(const Jogo& j) {
    const Mesa& m = j.mesa;
    return std::tuple(m.jogValor, m.jogNaipe, m.macValor, m.macNaipe, m.qtdJog, m.qtdMac,
                      m.qtdBaralho, m.discarteValor, m.discarteNaipe, j.modulo.qtdDescarte);
}

constexpr int kPausaDoVoo = 1; // ms per step of a flight: moves last a few events
constexpr int kEventosPorPartida = 300;
constexpr int kPrazoDoAssento = 10000; // ms for a move to end before the test calls it stuck

// The level first, so that it outlives the table that plays it.
struct ComNivelLento {
    NivelLento lento;
};

struct MesaViva : ComNivelLento, MesaNaTela {
    std::mt19937 sorte;
    QPoint ponteiro{400, 300};
    bool apertado = false;
    std::vector<std::string> diario; // the events so far, to replay a failure by reading
    // The picture the player last sent to the pile; and the one a click on a raised card must
    // send, which no later input may stand in for.
    std::optional<Figura> pretendida, devida;
    std::size_t descartesVistos = 0;

    explicit MesaViva(unsigned semente)
        : ComNivelLento{NivelLento(semente)}, MesaNaTela(semente, &lento, kPausaDoVoo),
          sorte(semente) {
        assenta();
    }

    Mesa& m() { return jogo.mesa; }
    const Gesto& gesto() const { return vista.cena().gesto; }
    const Cena& cena() const { return vista.cena(); }
    bool livre() { return !janela.condutor().ocupado() && !m().animando && !jogo.maosEmJogo; }
    Figura face(int casa) { return figuraDaFace(m().jogNaipe[casa], m().jogValor[casa]); }
    int sorteia(int n) { return std::uniform_int_distribution(0, n - 1)(sorte); }

    // --- the inputs, as the window gets them
    void mouse(QEvent::Type tipo, Qt::MouseButton botao) {
        const Qt::MouseButtons botoes = apertado ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent e(tipo, QPointF(ponteiro), janela.mapToGlobal(QPointF(ponteiro)), botao, botoes,
                      Qt::NoModifier);
        QApplication::sendEvent(&janela, &e);
    }
    QPoint alvo() {
        const int i = sorteia(8);
        if (i < 3)
            return janela.retanguloDa(peca::cj(static_cast<int16>(1 + sorteia(10)))).center();
        if (i == 3) return janela.retanguloDa(peca::kCostas2).center();
        if (i == 4) return janela.retanguloDa(peca::kDiscartado).center();
        if (i == 5) return lugar::kDica.center(); // the texts lie under passing cards
        if (i == 6) return lugar::kNivel.center();
        return {sorteia(800), 120 + sorteia(420)};
    }
    // The topmost card of the player where the pointer is, when it stands raised.
    std::optional<Figura> erguidaSobOPonteiro() {
        if (m().qtdJog != kCasaCompra) return std::nullopt;
        const auto& ordem = cena().ordem();
        for (auto it = ordem.rbegin(); it != ordem.rend(); ++it) {
            const Sprite& s = cena()[*it];
            if (!s.Visible || !janela.retanguloDa(*it).contains(ponteiro)) continue;
            const bool daFila = it->parte == Parte::cj || *it == peca::kPicmover;
            if (daFila && s.Top < gesto().yMao) return s.Picture;
            return std::nullopt;
        }
        return std::nullopt;
    }
    void move(QPoint p) {
        ponteiro = p;
        mouse(QEvent::MouseMove, Qt::NoButton);
    }
    void aperta() {
        apertado = true;
        mouse(QEvent::MouseButtonPress, Qt::LeftButton);
    }
    void solta() {
        if (gesto().arrastando == 1 && livre()) pretendida = cena()[peca::kPicmover].Picture;
        apertado = false;
        mouse(QEvent::MouseButtonRelease, Qt::LeftButton);
    }
    void clica(QPoint p) {
        move(p);
        const std::optional<Figura> erguida = livre() ? erguidaSobOPonteiro() : std::nullopt;
        const std::size_t descartes = jogo.historico.descartes.size();
        aperta();
        solta();
        if (!erguida) return;
        // A click on a raised card of ten throws it: the throw is under way, or done.
        devida = erguida;
        EXPECT_TRUE(!livre() || jogo.historico.descartes.size() != descartes)
            << "a click on a raised card was not taken";
    }
    void tecla(Qt::Key k, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        const int foco = cena().foco;
        const bool descarta = (k == Qt::Key_Return || k == Qt::Key_Space) && mods == 0;
        if (descarta && foco >= 1 && livre()) pretendida = cena()[peca::cj(foco)].Picture;
        QKeyEvent e(QEvent::KeyPress, k, mods);
        QApplication::sendEvent(&janela, &e);
    }
    void leitor() {
        QAccessibleInterface* mesa = QAccessible::queryAccessibleInterface(&janela);
        const int filho = sorteia(mesa->childCount());
        QAccessibleInterface* parte = mesa->child(filho);
        QAccessibleActionInterface* acoes = parte ? parte->actionInterface() : nullptr;
        if (!acoes || acoes->actionNames().isEmpty()) return;
        const QStringList nomes = acoes->actionNames();
        const QString acao = nomes[sorteia(static_cast<int>(nomes.size()))];
        diario.back() += " " + acao.toStdString() + " em " + std::to_string(filho);
        if (acao == "descartar" && filho < m().qtdJog && livre())
            pretendida = cena()[peca::cj(static_cast<int16>(filho + 1))].Picture;
        acoes->doAction(acao);
    }
    // One input as the window gets it; while a move is under way it must change nothing.
    template <class F> void entrada(const std::string& nome, F&& f) {
        diario.push_back(nome);
        const bool ocupada = !livre();
        const auto antes = estadoDe(jogo);
        f();
        if (ocupada) {
            EXPECT_TRUE(estadoDe(jogo) == antes) << nome << " changed the game in mid-move";
        }
        confere();
    }

    // One random event, checked, and then a random share of time for the moves to go on.
    void evento() {
        // The keys of a turn more often than the others: focus, draw, throw.
        static constexpr Qt::Key kTeclas[] = {
            Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Right, Qt::Key_Home,   Qt::Key_End,
            Qt::Key_Return, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_B,
            Qt::Key_B,      Qt::Key_P,      Qt::Key_O,     Qt::Key_D,      Qt::Key_Tab,
            Qt::Key_1,      Qt::Key_5,      Qt::Key_0};
        switch (sorteia(11)) {
        case 0:
            entrada("move", [&] { move(alvo()); });
            break;
        case 1: {
            // The keys walk to a card, and the mouse comes to click the card they raised.
            for (int i = sorteia(3); i >= 0; --i) entrada("direita", [&] { tecla(Qt::Key_Right); });
            const int16 foco = cena().foco;
            if (foco >= 1)
                entrada("clica no foco",
                        [&] { clica(janela.retanguloDa(peca::cj(foco)).center()); });
            break;
        }
        case 2:
            entrada(apertado ? "solta" : "aperta", [&] { apertado ? solta() : aperta(); });
            break;
        case 3:
            entrada("clica", [&] { clica(alvo()); });
            break;
        case 4:
        case 5: {
            const Qt::Key k = kTeclas[sorteia(std::size(kTeclas))];
            const bool shift = (k == Qt::Key_Left || k == Qt::Key_Right) && sorteia(2);
            entrada("tecla " + std::to_string(k) + (shift ? "+shift" : ""),
                    [&] { tecla(k, shift ? Qt::ShiftModifier : Qt::NoModifier); });
            break;
        }
        case 6:
            entrada("leitor", [&] { leitor(); });
            break;
        case 7:
        case 8: {
            // A card taken from the row and carried, over the texts too, and let go.
            const int16 casa = static_cast<int16>(1 + sorteia(m().qtdJog < 1 ? 1 : m().qtdJog));
            entrada("sobre", [&] { move(janela.retanguloDa(peca::cj(casa)).center()); });
            entrada("aperta", [&] { aperta(); });
            const QPoint de = ponteiro, para = alvo();
            const int passos = 1 + sorteia(4);
            for (int i = 1; i <= passos; ++i)
                entrada("arrasta", [&] { move(de + (para - de) * i / passos); });
            entrada("solta", [&] { solta(); });
            break;
        }
        case 9: {
            // A hint asked for, and a move before it comes: it must not mark the new table.
            entrada("dica", [&] { tecla(Qt::Key_D); });
            static constexpr Qt::Key kMudam[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_O, Qt::Key_B};
            const Qt::Key k = kMudam[sorteia(std::size(kMudam))];
            const bool seta = k == Qt::Key_Left || k == Qt::Key_Right;
            entrada("muda " + std::to_string(k),
                    [&] { tecla(k, seta ? Qt::ShiftModifier : Qt::NoModifier); });
            break;
        }
        default:
            break; // only time passes
        }
        const int espera = sorteia(10);
        if (espera < 2) {
            QApplication::processEvents();
        } else if (espera < 5) {
            passa(1 + sorteia(8));
        } else if (espera >= 7) {
            assenta();
        }
        confere();
    }

    // The window's loop for `ms`, or until the moves under way and the machine's turn are over.
    void passa(int ms, bool ateLivre = false) {
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < ms && !(ateLivre && livre())) {
            QApplication::processEvents(QEventLoop::AllEvents, 1);
            confereDescartes();
        }
    }
    void assenta() {
        passa(kPrazoDoAssento, true);
        ASSERT_TRUE(livre()) << "a move never ended";
        confere();
        EXPECT_FALSE(devida) << "a click on a raised card threw nothing";
        devida.reset();
    }

    // --- what is checked
    void confere() {
        confereDescartes();
        if (gesto().arrastando == 1 && livre()) return confereArraste();
        if (livre()) confereFila();
        if (const auto d = janela.dicaAtual(); d && d->tipo == Dica::Tipo::Carta) {
            ASSERT_TRUE(d->casa >= 1 && d->casa <= m().qtdJog);
            const std::string nome = nomeDaCarta(cartaNa(m().jogValor, m().jogNaipe, d->casa));
            EXPECT_NE(d->texto.find(nome), std::string::npos)
                << d->texto << " marks a card of another table: " << nome;
        }
    }
    void confereFila() {
        const int16 q = m().qtdJog;
        for (int16 i = 1; i <= kCasaCompra; ++i) {
            const Sprite& s = cena()[peca::cj(i)];
            ASSERT_EQ(s.Visible, i <= q) << "slot " << i << " with " << q << " cards";
            if (i <= q) {
                ASSERT_EQ(s.Picture, face(i)) << "slot " << i << " shows another card";
            }
        }
        ASSERT_TRUE(cena().foco >= 0 && cena().foco <= q);
        const Sprite& mover = cena()[peca::kPicmover];
        if (!mover.Visible) return;
        ASSERT_TRUE(gesto().cartaAtual >= 1 && gesto().cartaAtual <= q) << gesto().cartaAtual;
        const Sprite& sob = cena()[peca::cj(gesto().cartaAtual)];
        ASSERT_EQ(mover.Picture, sob.Picture) << "the moving sprite shows a card twice";
        ASSERT_TRUE(mover.Left == sob.Left && mover.Top == sob.Top)
            << "the moving sprite stands off its card";
    }
    void confereArraste() {
        const Sprite& mover = cena()[peca::kPicmover];
        ASSERT_TRUE(mover.Visible);
        ASSERT_EQ(mover.Picture, face(gesto().cartaAtual)) << "the card in the hand is another";
        // Always where it lies over a text of the felt; elsewhere now and then (a grab is dear).
        const QRect onde = janela.retanguloDa(peca::kPicmover);
        const bool sobreTexto =
            onde.intersects(lugar::kNivel.united(lugar::kQuatroCores)) ||
            onde.intersects(lugar::kLabel6.translated(lugar::kPainel)) ||
            onde.intersects(lugar::kPlacar1.united(lugar::kPlacar2).translated(lugar::kPainel));
        if (!sobreTexto && sorteia(8) != 0) return;
        // What is painted where the held card is: the card, nothing over it.
        const QImage tela = janela.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        const QImage carta =
            imagens.recortada(mover.Picture).toImage().convertToFormat(QImage::Format_ARGB32);
        const QPoint canto = onde.topLeft();
        int alheios = 0;
        for (int y = 0; y < carta.height(); ++y)
            for (int x = 0; x < carta.width(); ++x) {
                const QPoint p = canto + QPoint(x, y);
                if (qAlpha(carta.pixel(x, y)) == 255 && tela.rect().contains(p) &&
                    tela.pixel(p) != carta.pixel(x, y))
                    ++alheios;
            }
        EXPECT_EQ(alheios, 0) << "something is painted over the held card";
    }
    void confereDescartes() {
        const Historico& h = jogo.historico;
        if (h.descartes.size() < descartesVistos) descartesVistos = 0; // a new hand
        for (; descartesVistos < h.descartes.size(); ++descartesVistos) {
            if (h.autores[descartesVistos] != Lado::Jog) continue;
            const Carta c = h.descartes[descartesVistos];
            const std::optional<Figura> vista = devida ? devida : pretendida;
            ASSERT_TRUE(vista) << "a card was thrown that no input sent";
            EXPECT_EQ(figuraDaFace(c.naipe, c.valor), *vista)
                << "thrown: " << nomeDaCarta(c) << "; not the card the player saw";
            pretendida.reset();
            devida.reset();
        }
    }
};

TEST(MisturaNaMesa, MixedInputKeepsThePicturesOnTheGame) {
    for (unsigned semente = 1; semente <= 6; ++semente) {
        SCOPED_TRACE("semente " + std::to_string(semente));
        MesaViva t(semente);
        ASSERT_EQ(t.m().qtdJog, kCartasNaMao);
        for (int i = 0; i < kEventosPorPartida && !::testing::Test::HasFailure(); ++i) {
            t.evento();
            if (!t.janela.isVisible()) break;
        }
        if (::testing::Test::HasFailure()) {
            std::string ultimos;
            for (std::size_t i = t.diario.size() > 30 ? t.diario.size() - 30 : 0;
                 i < t.diario.size(); ++i)
                ultimos += t.diario[i] + "; ";
            FAIL() << "last events: " << ultimos;
        }
        // Closed at once, whatever is under way: a flight, the machine thinking, a hint.
        t.janela.close();
    }
}

} // namespace
} // namespace corvina

#include "shell/mesa_acessivel.h"

#include <QAccessible>
#include <mutex>

#include "shell/janela_mesa.h"
#include "table/jogada.h"

namespace corvina {

namespace {
inline constexpr int kChaveBaralho = kCasaCompra;

QString qt(const std::string& s) {
    return QString::fromStdString(s);
}

bool comando(Papel p) {
    return p == Papel::Carta || p == Papel::Baralho || p == Papel::Descarte ||
           p == Papel::Ordenar || p == Papel::Dica;
}

// The actions of each part, with the key that does the same.
struct Acionamento {
    enum class Pedido { Jogada, Dica };
    Papel papel;
    const char* nome;
    const char* tecla;
    Pedido acao = Pedido::Jogada;
    Acao comando = Acao::Comprar;
    int passo = 0; // for a move: the slot it goes to, from its own
};
const Acionamento kAcionamentos[] = {
    {Papel::Baralho, "comprar", "B", Acionamento::Pedido::Jogada, Acao::Comprar},
    {Papel::Descarte, "pegar", "P", Acionamento::Pedido::Jogada, Acao::PegarDescarte},
    {Papel::Carta, "descartar", "Enter", Acionamento::Pedido::Jogada, Acao::Descartar},
    {Papel::Carta, "mover para a esquerda", "Shift+Left", Acionamento::Pedido::Jogada, Acao::Mover,
     -1},
    {Papel::Carta, "mover para a direita", "Shift+Right", Acionamento::Pedido::Jogada, Acao::Mover,
     1},
    {Papel::Ordenar, "ordenar", "O", Acionamento::Pedido::Jogada, Acao::Ordenar},
    {Papel::Dica, "dica", "D", Acionamento::Pedido::Dica},
};
} // namespace

int chaveDaParte(const ItemDaLeitura& item, int indice) {
    switch (item.papel) {
    case Papel::Carta:
        return indice; // slot 1 is key 0
    case Papel::Baralho:
        return kChaveBaralho;
    case Papel::Descarte:
        return kChaveBaralho + 1;
    case Papel::MaoDaMaquina:
        return kChaveBaralho + 2;
    case Papel::Mensagens:
        return kChaveBaralho + 3;
    case Papel::Placar:
        return kChaveBaralho + 4;
    case Papel::Ordenar:
        return kChaveBaralho + 5;
    case Papel::Dica:
        return kChaveBaralho + 6;
    }
    return kChaveBaralho;
}

MesaAcessivel::MesaAcessivel(JanelaMesa* janela) : QAccessibleWidget(janela, QAccessible::Client) {}

JanelaMesa* MesaAcessivel::janela() const {
    return static_cast<JanelaMesa*>(widget());
}

ParteAcessivel* MesaAcessivel::parte(int chave) const {
    ParteAcessivel*& p = partes_[static_cast<std::size_t>(chave)];
    if (!p) {
        p = new ParteAcessivel(janela(), chave);
        QAccessible::registerAccessibleInterface(p); // Qt owns it from here
    }
    return p;
}

int MesaAcessivel::childCount() const {
    return static_cast<int>(janela()->leitura().size());
}

QAccessibleInterface* MesaAcessivel::child(int index) const {
    const auto itens = janela()->leitura();
    if (index < 0 || index >= static_cast<int>(itens.size())) return nullptr;
    return parte(chaveDaParte(itens[static_cast<std::size_t>(index)], index));
}

int MesaAcessivel::indexOfChild(const QAccessibleInterface* filho) const {
    const auto* p = dynamic_cast<const ParteAcessivel*>(filho);
    if (!p) return -1;
    const auto itens = janela()->leitura();
    for (std::size_t i = 0; i < itens.size(); ++i)
        if (chaveDaParte(itens[i], static_cast<int>(i)) == p->chave()) return static_cast<int>(i);
    return -1;
}

QAccessibleInterface* MesaAcessivel::childAt(int x, int y) const {
    for (int i = childCount() - 1; i >= 0; --i)
        if (QAccessibleInterface* c = child(i); c && c->rect().contains(x, y)) return c;
    return nullptr;
}

QAccessibleInterface* MesaAcessivel::focusChild() const {
    const auto itens = janela()->leitura();
    for (std::size_t i = 0; i < itens.size(); ++i)
        if (itens[i].foco) return parte(chaveDaParte(itens[i], static_cast<int>(i)));
    return nullptr;
}

QString MesaAcessivel::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) return QStringLiteral("Mesa do Corvina");
    return QAccessibleWidget::text(t);
}

ParteAcessivel::ParteAcessivel(JanelaMesa* janela, int chave) : janela_(janela), chave_(chave) {}

JanelaMesa* ParteAcessivel::janelaViva() const {
    return static_cast<JanelaMesa*>(janela_.data());
}

std::optional<ItemDaLeitura> ParteAcessivel::item() const {
    JanelaMesa* j = janelaViva();
    if (!j) return std::nullopt;
    const auto itens = j->leitura();
    for (std::size_t i = 0; i < itens.size(); ++i)
        if (chaveDaParte(itens[i], static_cast<int>(i)) == chave_) return itens[i];
    return std::nullopt;
}

bool ParteAcessivel::isValid() const {
    return janela_ != nullptr;
}

QWindow* ParteAcessivel::window() const {
    JanelaMesa* j = janelaViva();
    return j ? j->window()->windowHandle() : nullptr;
}

QAccessibleInterface* ParteAcessivel::parent() const {
    JanelaMesa* j = janelaViva();
    return j ? QAccessible::queryAccessibleInterface(j) : nullptr;
}

QString ParteAcessivel::text(QAccessible::Text t) const {
    const auto i = item();
    if (!i) return {};
    if (t == QAccessible::Name) return qt(i->nome);
    if (t == QAccessible::Description) return qt(i->descricao);
    return {};
}

QRect ParteAcessivel::rect() const {
    JanelaMesa* j = janelaViva();
    const auto i = item();
    if (!j || !i) return {};
    const QRect r = j->retanguloDaLeitura(*i);
    return QRect(j->mapToGlobal(r.topLeft()), r.size());
}

QAccessible::Role ParteAcessivel::role() const {
    const auto i = item();
    switch (i ? i->papel : Papel::Placar) {
    case Papel::Carta:
        return QAccessible::ListItem;
    case Papel::Baralho:
    case Papel::Descarte:
    case Papel::Ordenar:
    case Papel::Dica:
        return QAccessible::Button;
    case Papel::Mensagens:
        return QAccessible::StatusBar;
    case Papel::MaoDaMaquina:
    case Papel::Placar:
        return QAccessible::StaticText;
    }
    return QAccessible::StaticText;
}

QAccessible::State ParteAcessivel::state() const {
    QAccessible::State s;
    const auto i = item();
    if (!i) {
        s.invisible = true;
        return s;
    }
    if (i->papel == Papel::Carta) {
        s.focusable = true;
        s.selectable = true;
        s.focused = i->foco;
        s.selected = i->foco;
    }
    s.disabled = comando(i->papel) && !i->acionavel;
    return s;
}

void* ParteAcessivel::interface_cast(QAccessible::InterfaceType t) {
    if (t == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QStringList ParteAcessivel::actionNames() const {
    const auto i = item();
    if (!i || !comando(i->papel)) return {};
    QStringList nomes;
    for (const Acionamento& a : kAcionamentos)
        if (a.papel == i->papel) nomes << QString::fromUtf8(a.nome);
    // The press of a button is the tools' own word for its first action.
    if (i->papel != Papel::Carta) nomes << pressAction();
    return nomes;
}

QStringList ParteAcessivel::keyBindingsForAction(const QString& acao) const {
    const auto i = item();
    if (!i) return {};
    for (const Acionamento& a : kAcionamentos)
        if (a.papel == i->papel && (acao == QString::fromUtf8(a.nome) || acao == pressAction()))
            return {QString::fromUtf8(a.tecla)};
    return {};
}

void ParteAcessivel::doAction(const QString& acao) {
    JanelaMesa* j = janelaViva();
    const auto i = item();
    if (!j || !i) return;
    const auto casa = static_cast<int16>(chave_ + 1); // cards are keyed by slot
    for (const Acionamento& a : kAcionamentos) {
        if (a.papel != i->papel) continue;
        if (acao != QString::fromUtf8(a.nome) &&
            !(acao == pressAction() && i->papel != Papel::Carta))
            continue;
        switch (a.acao) {
        case Acionamento::Pedido::Dica:
            return j->pedeDica();
        case Acionamento::Pedido::Jogada:
            j->joga({a.comando, casa, static_cast<int16>(casa + a.passo)});
            return;
        }
    }
}

void instalaMesaAcessivel() {
    static std::once_flag feito;
    std::call_once(feito, [] {
        QAccessible::installFactory([](const QString&, QObject* o) -> QAccessibleInterface* {
            auto* j = dynamic_cast<JanelaMesa*>(o);
            return j ? new MesaAcessivel(j) : nullptr;
        });
    });
}

void AvisoAosLeitores::envia(QAccessibleEvent& e) const {
    if (destino_)
        destino_(&e);
    else
        QAccessible::updateAccessibility(&e);
}

void AvisoAosLeitores::avisa(JanelaMesa& janela) {
    // Called at every step of a card's flight: with no tool listening, nothing to read.
    if (!destino_ && !QAccessible::isActive()) return;
    auto* mesa = dynamic_cast<MesaAcessivel*>(QAccessible::queryAccessibleInterface(&janela));
    if (!mesa) return;
    std::array<std::optional<ItemDaLeitura>, kChavesDasPartes> agora{};
    int foco = -1;
    const auto itens = janela.leitura();
    for (std::size_t i = 0; i < itens.size(); ++i) {
        const int chave = chaveDaParte(itens[i], static_cast<int>(i));
        agora[static_cast<std::size_t>(chave)] = itens[i];
        if (itens[i].foco) foco = chave;
    }
    for (int chave = 0; chave < kChavesDasPartes; ++chave) {
        const auto& a = antes_[static_cast<std::size_t>(chave)];
        const auto& b = agora[static_cast<std::size_t>(chave)];
        if (a == b) continue;
        ParteAcessivel* p = mesa->parte(chave);
        const auto manda = [&](QAccessible::Event tipo) {
            QAccessibleEvent e(p, tipo);
            envia(e);
        };
        if (!a) manda(QAccessible::ObjectShow);
        if (!b) manda(QAccessible::ObjectHide);
        if (a && b && a->nome != b->nome) manda(QAccessible::NameChanged);
        if (a && b && a->descricao != b->descricao) manda(QAccessible::DescriptionChanged);
        if (a && b && (a->acionavel != b->acionavel || a->foco != b->foco)) {
            QAccessible::State mudou;
            mudou.disabled = a->acionavel != b->acionavel;
            mudou.focused = mudou.selected = a->foco != b->foco;
            QAccessibleStateChangeEvent e(p, mudou);
            envia(e);
        }
    }
    // The focus only moves by the keys pressed on the table: the window has the keyboard.
    if (foco != focoAntes_ && foco >= 0) {
        QAccessibleEvent e(mesa->parte(foco), QAccessible::Focus);
        envia(e);
    }
    antes_ = agora;
    focoAntes_ = foco;
}

} // namespace corvina

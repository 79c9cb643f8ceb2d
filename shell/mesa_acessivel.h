#pragma once
// The table window as accessibility tools see it: the painted parts of the table become
// accessible children (the player's cards, the stock, the pile, the machine's row, the line of
// messages, the score), named as leituraDaMesa reads them, and each change reaches the tools
// as an event.

#include <QAccessibleWidget>
#include <QPointer>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "table/leitura_da_mesa.h"

namespace corvina {

class JanelaMesa;
class ParteAcessivel;

// One key per part, the same through the whole run: cards by slot, then the other parts.
inline constexpr int kChavesDasPartes = kCasaCompra + 7;
int chaveDaParte(const ItemDaLeitura& item, int indice);

class MesaAcessivel : public QAccessibleWidget {
  public:
    explicit MesaAcessivel(JanelaMesa* janela);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text t) const override;

    JanelaMesa* janela() const;
    ParteAcessivel* parte(int chave) const;

  private:
    mutable std::array<ParteAcessivel*, kChavesDasPartes> partes_{};
};

// A part a person can use with the mouse can be used through the tools' actions too: each
// action sends the same command as the click.
class ParteAcessivel : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    ParteAcessivel(JanelaMesa* janela, int chave);

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation) const override {
        return {};
    }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType t) override;

    QStringList actionNames() const override;
    void doAction(const QString& acao) override;
    QStringList keyBindingsForAction(const QString& acao) const override;

    int chave() const { return chave_; }

  private:
    std::optional<ItemDaLeitura> item() const;
    JanelaMesa* janelaViva() const;
    QPointer<QWidget> janela_;
    int chave_;
};

// Makes the table window answer accessibility tools; once per program.
void instalaMesaAcessivel();

// What the tools last heard of the table, so that only changes are sent.
class AvisoAosLeitores {
  public:
    // Where the events go: to the accessibility tools (Qt's bridge), unless a test listens.
    using Destino = std::function<void(QAccessibleEvent*)>;
    void destino(Destino d) { destino_ = std::move(d); }

    // Compares the table with what was sent and sends the differences: names, descriptions,
    // parts shown and hidden, the focus.
    void avisa(JanelaMesa& janela);

  private:
    std::array<std::optional<ItemDaLeitura>, kChavesDasPartes> antes_{};
    int focoAntes_ = -1;
    Destino destino_;
    void envia(QAccessibleEvent& e) const;
};

} // namespace corvina

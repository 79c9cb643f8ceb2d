#include "players/qt/comando_acessivel.h"

#include <QAccessibleWidget>
#include <QTextDocumentFragment>
#include <mutex>

#include "players/qt/janela_de_figura.h"

namespace corvina {

namespace {
class ComandoAcessivel : public QAccessibleWidget {
  public:
    explicit ComandoAcessivel(Comando* c) : QAccessibleWidget(c, QAccessible::Button) {}

    QString text(QAccessible::Text t) const override {
        if (t != QAccessible::Name) return QAccessibleWidget::text(t);
        // The label may hold rich text or line breaks; the name is its words.
        // A command whose word is drawn on the window's picture is named apart.
        const auto* c = static_cast<const Comando*>(widget());
        if (c->text().isEmpty()) return c->accessibleName();
        return QTextDocumentFragment::fromHtml(c->text()).toPlainText().simplified();
    }
    QStringList actionNames() const override {
        return widget()->isEnabled() ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& acao) override {
        if (acao == pressAction()) static_cast<Comando*>(widget())->aciona();
    }
};
} // namespace

void instalaComandoAcessivel() {
    static std::once_flag feito;
    std::call_once(feito, [] {
        QAccessible::installFactory([](const QString&, QObject* o) -> QAccessibleInterface* {
            auto* c = dynamic_cast<Comando*>(o);
            return c ? new ComandoAcessivel(c) : nullptr;
        });
    });
}

} // namespace corvina

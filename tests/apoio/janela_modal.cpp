#include "apoio/janela_modal.h"

#include <QApplication>
#include <QTimer>

namespace corvina::teste {

std::vector<std::pair<std::string, std::shared_ptr<bool>>>& janelasEsperadas() {
    static std::vector<std::pair<std::string, std::shared_ptr<bool>>> esperadas;
    return esperadas;
}

void quandoAbrir(const char* nome, std::function<void(QWidget*)> acao) {
    auto feito = std::make_shared<bool>(false);
    janelasEsperadas().emplace_back(nome, feito);
    auto* relogio = new QTimer;
    relogio->setInterval(5);
    auto vezes = std::make_shared<int>(0);
    QObject::connect(relogio, &QTimer::timeout, [=] {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || w->objectName() != nome || !w->isVisible()) {
            *vezes = 0;
            return;
        }
        if (++*vezes < 4) return;
        relogio->stop();
        relogio->deleteLater();
        *feito = true;
        acao(w);
    });
    relogio->start();
}

} // namespace corvina::teste

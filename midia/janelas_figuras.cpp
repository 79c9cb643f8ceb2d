#include "midia/janelas_figuras.h"

#include <QColor>
#include <map>
#include <string>

#include "midia/imagens.h"

namespace corvina {

const QPixmap& figuraDaJanela(const char* nome) {
    static std::map<std::string, QPixmap> carregadas;
    auto [it, nova] = carregadas.try_emplace(nome);
    if (nova) {
        it->second = QPixmap(pastaDeImagens() + "/janelas/" + nome + ".png");
        if (it->second.isNull()) {
            avisaFigurasFaltando({QString("janelas/%1.png").arg(nome)});
            it->second = QPixmap(800, 600);
            it->second.fill(QColor(30, 50, 38));
        }
    }
    return it->second;
}

} // namespace corvina

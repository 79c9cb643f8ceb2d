#include "midia/janelas_figuras.h"

#include <QColor>
#include <map>
#include <string>
#include <utility>

#include "midia/imagens.h"

namespace corvina {

const QPixmap& figuraDaJanela(const char* nome, qreal razao) {
    static std::map<std::pair<std::string, int>, QPixmap> carregadas;
    const int escala = escalaDasFiguras(razao);
    auto [it, nova] = carregadas.try_emplace({nome, escala});
    if (!nova) return it->second;
    const QString arquivo = QString("janelas/%1.png").arg(nome);
    QPixmap& p = it->second;
    p = QPixmap(pastaDeImagens() + "/" + arquivoNaEscala(arquivo, escala));
    if (!p.isNull()) {
        p.setDevicePixelRatio(escala);
        return p;
    }
    avisaFigurasFaltando({arquivoNaEscala(arquivo, escala)});
    if (escala > 1) return p = figuraDaJanela(nome, 1); // the 1x surface, enlarged
    p = QPixmap(800, 600);
    p.fill(QColor(30, 50, 38));
    return p;
}

} // namespace corvina

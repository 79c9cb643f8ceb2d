#include "players/highcor.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "core/ajustes.h"

namespace corvina {

namespace {
inline constexpr int kEntradas = 10;

// Fields are quoted strings or bare numbers, separated by line ends or commas.
std::vector<std::string> campos(const QByteArray& texto) {
    std::vector<std::string> saida;
    std::string atual;
    bool aspas = false, temCampo = false;
    for (const char c : texto) {
        if (c == '"') {
            aspas = !aspas;
            temCampo = true;
        } else if (!aspas && (c == '\n' || c == '\r' || c == ',')) {
            if (temCampo || !atual.empty()) saida.push_back(atual);
            atual.clear();
            temCampo = false;
        } else {
            atual += c;
        }
    }
    if (temCampo || !atual.empty()) saida.push_back(atual);
    return saida;
}
} // namespace

QString pastaDoHighcor() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Highcor preparaHighcor(const QString& pasta) {
    Highcor h;
    QDir().mkpath(pasta);
    QFile arquivo(QDir(pasta).filePath("highcor.dat"));
    if (!arquivo.open(QIODevice::ReadWrite)) return h; // not writable: an empty table
    const QByteArray conteudo = arquivo.readAll();
    if (conteudo.isEmpty()) {
        QByteArray linhas;
        for (int i = 0; i < kEntradas; ++i) linhas += "\".\"\r\n0\r\n";
        linhas += "0\r\n";
        arquivo.write(linhas);
        return h;
    }
    const auto lidos = campos(conteudo);
    for (int i = 0; i < kEntradas && 2 * i + 1 < static_cast<int>(lidos.size()); ++i) {
        h.nomesArquivo[i] = lidos[2 * i];
        h.pontosArquivo[i] = numeroDoTexto(lidos[2 * i + 1]);
    }
    return h;
}

} // namespace corvina

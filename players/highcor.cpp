#include "players/highcor.h"

#include <filesystem>
#include <vector>

#include "arquivos/arquivo_regular.h"
#include "core/ajustes.h"

namespace corvina {

namespace {
inline constexpr int kEntradas = 10;
// Ten names and ten numbers; no name a person types comes near this.
inline constexpr std::size_t kMaiorHighcor = 64 * 1024;

// Fields are quoted strings or bare numbers, separated by line ends or commas.
std::vector<std::string> campos(const std::string& texto) {
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

std::string linhasNovas() {
    std::string linhas;
    for (int i = 0; i < kEntradas; ++i) linhas += "\".\"\r\n0\r\n";
    return linhas + "0\r\n";
}
} // namespace

Highcor preparaHighcor(const std::string& pasta) {
    Highcor h;
    std::error_code erro;
    std::filesystem::create_directories(pasta, erro);
    const std::string caminho = (std::filesystem::path(pasta) / "highcor.dat").string();
    const ArquivoLido lido = leArquivoRegular(caminho, kMaiorHighcor);
    if (lido.situacao == SituacaoDoArquivo::Ausente ||
        (lido.situacao == SituacaoDoArquivo::Lido && lido.conteudo.empty())) {
        gravaArquivoRegular(caminho, linhasNovas()); // a folder that can't be written: no file
        return h;
    }
    if (lido.situacao != SituacaoDoArquivo::Lido) return h; // left for a person to look at
    const auto lidos = campos(lido.conteudo);
    for (int i = 0; i < kEntradas && 2 * i + 1 < static_cast<int>(lidos.size()); ++i) {
        h.nomesArquivo[i] = lidos[2 * i];
        h.pontosArquivo[i] = numeroDoTexto(lidos[2 * i + 1]);
    }
    return h;
}

} // namespace corvina

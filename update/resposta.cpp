#include "update/resposta.h"

#include "update/campos.h"
#include "update/textos_update.h"
#include "update/versao.h"

namespace corvina {

std::string ultimaLinha(std::string_view conteudo) {
    std::string ultima;
    bool alguma = false;
    std::size_t i = 0;
    while (i < conteudo.size()) {
        const std::size_t fim = conteudo.find_first_of("\r\n", i);
        const std::size_t ate = fim == std::string_view::npos ? conteudo.size() : fim;
        ultima = std::string(conteudo.substr(i, ate - i));
        alguma = true;
        if (fim == std::string_view::npos) break;
        i = fim + 1;
        if (conteudo[fim] == '\r' && i < conteudo.size() && conteudo[i] == '\n') ++i;
    }
    return alguma ? ultima + "\r\n" : std::string();
}

std::string avaliaResposta(std::string_view resposta, std::string_view versaoLocal,
                           std::string_view titulo) {
    if (resposta.find(kDelimitador) == std::string_view::npos) return texto::kSemConexao;
    if (!MaiorVersion(versaoLocal, campo(resposta, kDelimitador, 2)))
        return std::string(texto::kJaRecente) + std::string(titulo);
    return std::string(kDelimitador) + texto::kLink + std::string(resposta);
}

} // namespace corvina

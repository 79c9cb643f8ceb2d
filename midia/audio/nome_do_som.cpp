#include "midia/audio/nome_do_som.h"

#include <system_error>

#include "core/ajustes.h"

namespace corvina {

namespace {
std::string_view semMolduras(std::string_view literal) {
    while (!literal.empty() && (literal.front() == '\\' || literal.front() == '/'))
        literal.remove_prefix(1);
    while (!literal.empty() && (literal.back() == ' ' || literal.back() == '.'))
        literal.remove_suffix(1);
    return literal;
}

bool regular(const std::filesystem::path& p) {
    std::error_code erro;
    return std::filesystem::is_regular_file(p, erro);
}
} // namespace

std::optional<std::filesystem::path> arquivoDoSom(const std::filesystem::path& pasta,
                                                  std::string_view literal) {
    const std::string_view nome = semMolduras(literal);
    // A name is one file of the folder: no way up or across.
    if (nome.empty() || nome.find_first_of("/\\") != std::string_view::npos || nome == "..")
        return std::nullopt;
    const std::filesystem::path exato = pasta / std::string(nome);
    if (regular(exato)) return exato;
    const std::string procurado = dobraCaixa(nome);
    std::error_code erro;
    for (std::filesystem::directory_iterator it(pasta, erro), fim; !erro && it != fim;
         it.increment(erro)) {
        if (dobraCaixa(it->path().filename().string()) == procurado && regular(it->path()))
            return it->path();
    }
    return std::nullopt;
}

} // namespace corvina

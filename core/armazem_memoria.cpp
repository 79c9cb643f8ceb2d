#include "core/armazem_memoria.h"

#include "core/ajustes.h"

namespace corvina {

namespace {
std::pair<std::string, std::string> indice(const std::string& chave, const std::string& nome) {
    return {dobraCaixa(chave), dobraCaixa(nome)};
}
} // namespace

std::string ArmazemMemoria::le(const std::string& chave, const std::string& nome,
                               const std::string& padrao) {
    const std::string* valor = bruto(chave, nome);
    if (valor == nullptr || valor->empty()) return padraoDeLeitura(padrao);
    return *valor;
}

bool ArmazemMemoria::grava(const std::string& chave, const std::string& nome,
                           const std::string& valor) {
    valores_[indice(chave, nome)] = valor;
    return true;
}

const std::string* ArmazemMemoria::bruto(const std::string& chave, const std::string& nome) const {
    const auto it = valores_.find(indice(chave, nome));
    return it == valores_.end() ? nullptr : &it->second;
}

} // namespace corvina

#include "players/escolha_de_nivel.h"

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"

namespace corvina {

EscolhaDeNivel::EscolhaDeNivel(Module1& modulo, Armazem& armazem)
    : modulo_(modulo), armazem_(armazem), nivel_(modulo.nivel), justa_(modulo.distribuicaoJusta) {}

void EscolhaDeNivel::alternaJusta() {
    if (justaEscolhivel()) justa_ = !justa_;
}

void EscolhaDeNivel::confirma() {
    modulo_.nivel = nivel_;
    modulo_.distribuicaoJusta = justa_;
    const std::string chave = chaveJogador(modulo_.nomeJogador);
    const LoteDeAjustes lote(armazem_);
    armazem_.grava(chave, ajuste::kNivel, std::string(dadosDoNivel(nivel_).chave));
    armazem_.grava(chave, ajuste::kDistribuicaoJusta, textoBooleano(justa_));
}

std::string legendaDoNivel(TipoNivel n) {
    return "Nível: " + std::string(dadosDoNivel(n).nome);
}

std::string legendaDaDistribuicao(TipoNivel n, bool distribuicaoJusta) {
    return trocaNaDistribuicao(n, distribuicaoJusta) ? "A CPU pode trocar as mãos"
                                                     : "Distribuição justa";
}

std::string descricaoDoNivel(TipoNivel n) {
    return std::string(dadosDoNivel(n).descricao);
}

} // namespace corvina

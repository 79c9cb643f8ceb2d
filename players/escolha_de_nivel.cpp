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
    armazem_.grava(chave, ajuste::kNivel, std::string(chaveDoNivel(nivel_)));
    armazem_.grava(chave, ajuste::kDistribuicaoJusta, textoBooleano(justa_));
}

std::string legendaDoNivel(TipoNivel n) {
    return "Nível: " + std::string(nomeDoNivel(n));
}

std::string legendaDaDistribuicao(TipoNivel n, bool distribuicaoJusta) {
    return trocaNaDistribuicao(n, distribuicaoJusta) ? "A CPU pode trocar as mãos"
                                                     : "Distribuição justa";
}

std::string descricaoDoNivel(TipoNivel n) {
    static_assert(static_cast<int>(TipoNivel::Classico) == 0 &&
                  static_cast<int>(TipoNivel::Forte) == 2);
    constexpr const char* kDescricoes[] = {"A máquina de sempre; pode trocar as mãos.",
                                           "Conta as cartas que faltam e as que já saíram.",
                                           "Pensa duas compras adiante. O mais difícil."};
    return kDescricoes[static_cast<int>(n)];
}

} // namespace corvina

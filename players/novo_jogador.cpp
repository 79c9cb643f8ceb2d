#include "players/novo_jogador.h"

#include "core/ajustes.h"
#include "players/dobra_nome.h"
#include "players/lista_de_jogadores.h"
#include "players/textos_jogadores.h"

namespace corvina {

std::string primeirasLetras(const std::string& texto, std::size_t letras) {
    std::size_t i = 0;
    for (std::size_t n = 0; i < texto.size() && n < letras; ++n) {
        ++i;
        while (i < texto.size() && (static_cast<unsigned char>(texto[i]) & 0xC0) == 0x80) ++i;
    }
    return texto.substr(0, i);
}

NovoJogador::NovoJogador(Module1& modulo, Armazem& armazem, Arredores arredores)
    : modulo_(modulo), armazem_(armazem), arredores_(std::move(arredores)),
      texto_(texto::kJogadorProposto) {}

void NovoJogador::digita(const std::string& texto) {
    texto_ = primeirasLetras(texto, kLetrasDoNome);
}

bool NovoJogador::ok() {
    if (texto_.empty()) texto_ = texto::kJogadorProposto;
    const Cadastro c = procuraCadastro(armazem_, texto_);
    if (c.existente) {
        if (!arredores_.simNao(texto_ + texto::kJaCadastrado + "\r" + texto::kJogarComEsteNome,
                               kTitulo))
            return false;
        modulo_.nomeJogador = texto_;
        return true;
    }
    modulo_.nomeJogador = aparaBrancos(texto_);
    if (c.lugar > kMaxJogadores) return true; // the list is full: played, not listed
    arredores_.adicionaNaLista(modulo_.nomeJogador);
    armazem_.grava(chaveBase(), ajuste::jogador(c.lugar), modulo_.nomeJogador);
    return true;
}

void NovoJogador::fecha() {
    modulo_.nomeJogador = texto_.empty() ? std::string(texto::kSemNome) : texto_;
}

} // namespace corvina

#pragma once
// The list of players in the store: Jogador1, Jogador2, ... in the order of registration,
// without gaps, ending at the first empty value; and each player's record.

#include <string>
#include <vector>

#include "core/armazem.h"
#include "core/nivel.h"

namespace corvina {

inline constexpr int kMaxJogadores = 50;

std::vector<std::string> leListaDeJogadores(Armazem& a);

// The place N of the name in the list, 0 when it is not there.
int posicaoNaLista(Armazem& a, const std::string& nome);

// Moves every name after place n one place down; the last place becomes empty. The player's
// record stays in the store, for a player registered again under the name.
void tiraDaLista(Armazem& a, int n);

struct Cadastro {
    bool existente = false; // a registered name differs only in capitals or outer blanks
    int lugar = 0;          // where it was found, or the first free place
};
// Where a typed name stands or would go; nothing is written.
Cadastro procuraCadastro(Armazem& a, const std::string& digitado);

struct Registro {
    long vitorias = 0, derrotas = 0, saldo = 0;
    long jogos() const { return vitorias + derrotas; }
    bool assistido = false;
    TipoNivel nivel = TipoNivel::Classico; // an unknown name is Clássico
    bool distribuicaoJusta = false;
};
Registro leRegistro(Armazem& a, const std::string& nome);

} // namespace corvina

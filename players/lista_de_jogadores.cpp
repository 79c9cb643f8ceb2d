#include "players/lista_de_jogadores.h"

#include <algorithm>

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "core/recorde.h"
#include "machine/niveis.h"
#include "players/dobra_nome.h"

namespace corvina {

std::vector<std::string> leListaDeJogadores(Armazem& a) {
    std::vector<std::string> nomes;
    for (int n = 1; n <= kMaxJogadores; ++n) {
        std::string nome = a.le(chaveBase(), ajuste::jogador(n), "");
        if (nome.empty()) break;
        nomes.push_back(std::move(nome));
    }
    return nomes;
}

int posicaoNaLista(Armazem& a, const std::string& nome) {
    // The list ends at its first empty place, however long someone made it.
    for (int n = 1;; ++n) {
        const std::string aqui = a.le(chaveBase(), ajuste::jogador(n), "");
        if (aqui == nome && !nome.empty()) return n;
        if (aqui.empty()) return 0;
    }
}

void tiraDaLista(Armazem& a, int n) {
    const LoteDeAjustes lote(a);
    for (int seguinte = n + 1;; ++seguinte) {
        const std::string nome = a.le(chaveBase(), ajuste::jogador(seguinte), "");
        if (nome.empty()) {
            a.grava(chaveBase(), ajuste::jogador(seguinte - 1), "");
            return;
        }
        a.grava(chaveBase(), ajuste::jogador(seguinte - 1), nome);
    }
}

Cadastro procuraCadastro(Armazem& a, const std::string& digitado) {
    const std::string procurado = dobraNome(aparaBrancos(digitado));
    for (int n = 1;; ++n) {
        const std::string nome = a.le(chaveBase(), ajuste::jogador(n), "");
        if (nome.empty()) return {false, n};
        if (dobraNome(nome) == procurado) return {true, n};
    }
}

Registro leRegistro(Armazem& a, const std::string& nome) {
    const std::string chave = chaveJogador(nome);
    Registro r;
    // A figure out of range, typed by hand or hostile, counts as its nearest bound.
    const auto numero = [&](const char* valor, long menor) {
        return std::clamp(numeroDoTexto(a.le(chave, valor, "0")), menor, kMaiorContagem);
    };
    r.vitorias = numero(ajuste::kVitorias, 0);
    r.derrotas = numero(ajuste::kDerrotas, 0);
    r.saldo = numero(ajuste::kSaldo, -kMaiorContagem);
    r.assistido = numeroDoTexto(a.le(chave, ajuste::kAssistido, "0")) == 1;
    r.nivel = nivelDaChave(a.le(chave, ajuste::kNivel, "")).value_or(TipoNivel::Classico);
    r.distribuicaoJusta = booleanoDoTexto(a.le(chave, ajuste::kDistribuicaoJusta, "False"));
    return r;
}

} // namespace corvina

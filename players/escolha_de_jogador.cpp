#include "players/escolha_de_jogador.h"

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/dobra_nome.h"
#include "players/lista_de_jogadores.h"
#include "players/textos_jogadores.h"

namespace corvina {

EscolhaDeJogador::EscolhaDeJogador(Module1& modulo, Armazem& armazem, Historicos& historicos,
                                   Arredores arredores)
    : modulo_(modulo), armazem_(armazem), historicos_(historicos),
      arredores_(std::move(arredores)) {}

void EscolhaDeJogador::preenche() {
    lista_ = leListaDeJogadores(armazem_);
    selecionada_ = -1;
}

void EscolhaDeJogador::carrega(bool cancelavel) {
    cancelavel_ = cancelavel;
    fechada_ = false;
    preenche();
    if (!modulo_.nomeJogador.empty()) {
        seleciona(modulo_.nomeJogador);
    } else if (const std::string preferido = armazem_.le(chaveBase(), ajuste::kNomeJogador, "");
               !preferido.empty()) {
        seleciona(preferido);
    }
    if (selecionada_ < 0 && !lista_.empty()) selecionaLinha(0);
}

void EscolhaDeJogador::primeiraAtivacao() {
    if (armazem_.le(chaveBase(), ajuste::jogador(1), "").empty()) {
        arredores_.abreNovoJogador();
        seleciona(modulo_.nomeJogador);
    } else if (const std::string ultimo = armazem_.le(chaveBase(), ajuste::kUltimoJogador, "");
               !ultimo.empty()) {
        seleciona(ultimo);
    }
    arredores_.iniciaMusica();
}

bool EscolhaDeJogador::seleciona(const std::string& texto) {
    for (std::size_t i = 0; i < lista_.size(); ++i)
        if (lista_[i] == texto) {
            selecionaLinha(static_cast<int>(i));
            return true;
        }
    return false;
}

void EscolhaDeJogador::selecionaLinha(int i) {
    if (i < 0 || i >= static_cast<int>(lista_.size())) return;
    selecionada_ = i;
    aoSelecionar();
}

std::string EscolhaDeJogador::textoSelecionado() const {
    return selecionada_ < 0 ? std::string() : lista_[selecionada_];
}

void EscolhaDeJogador::aoSelecionar() {
    const std::string nome = aparaBrancos(textoSelecionado());
    if (nome.empty()) return;
    const Registro r = leRegistro(armazem_, nome);
    vitorias = std::to_string(r.vitorias);
    derrotas = std::to_string(r.derrotas);
    saldo = std::to_string(r.saldo);
    jogos = std::to_string(r.jogos()); // not stored: the sum of the two
    legendaExcluir = std::string(texto::kExcluir) + nome;
    assistido_ = r.assistido;
}

void EscolhaDeJogador::alternaAssistido() {
    assistido_ = !assistido_;
}

void EscolhaDeJogador::jogar() {
    modulo_.nomeJogador = aparaBrancos(textoSelecionado());
    modulo_.assistido = assistido_ ? 1 : 0;
    armazem_.grava(chaveJogador(modulo_.nomeJogador), ajuste::kAssistido,
                   std::to_string(modulo_.assistido));
    modulo_.nomeCancelado = false;
    fecha();
}

void EscolhaDeJogador::cancelar() {
    if (!cancelavel_) return;
    modulo_.nomeCancelado = true;
    fecha();
}

void EscolhaDeJogador::fecha() {
    if (fechada_) return;
    fechada_ = true;
    arredores_.paraMusica();
    // The name at the table follows the selection, also when the window is cancelled.
    modulo_.nomeJogador = textoSelecionado();
    if (modulo_.nomeJogador.empty()) modulo_.nomeJogador = texto::kSemNome;
    // Each player meets the opponent and the deal that player chose.
    const Registro r = leRegistro(armazem_, aparaBrancos(modulo_.nomeJogador));
    modulo_.nivel = r.nivel;
    modulo_.distribuicaoJusta = r.distribuicaoJusta;
}

void EscolhaDeJogador::excluir() {
    const std::string procurado = aparaBrancos(textoSelecionado());
    const int n = posicaoNaLista(armazem_, procurado);
    // With nothing selected the search ends at the first free place, an empty name: the
    // question is asked all the same, and Sim removes nothing.
    if (n == 0 && !procurado.empty()) return; // the store changed under the window
    const std::string nome = n == 0 ? "" : armazem_.le(chaveBase(), ajuste::jogador(n), "");
    if (!arredores_.perguntaSimNao(std::string(texto::kDesejaExcluir) + nome + "?")) return;
    if (n > 0) {
        // The record stays, for a name registered again; the history goes with the player.
        const LoteDeAjustes lote(armazem_);
        tiraDaLista(armazem_, n);
        historicos_.apagaHistorico(nome);
    }
    preenche();
    seleciona(armazem_.le(chaveBase(), ajuste::jogador(1), ""));
    if (lista_.empty()) {
        arredores_.abreNovoJogador();
        seleciona(modulo_.nomeJogador);
    }
}

void EscolhaDeJogador::cadastrar() {
    if (!podeCadastrar()) return;
    arredores_.abreNovoJogador();
    seleciona(modulo_.nomeJogador);
}

} // namespace corvina

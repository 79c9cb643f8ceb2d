#pragma once
// The choose-player window as plain state: the list, the selection and its record, the
// assisted-mode box and the commands. The window paints this and forwards the clicks.

#include <functional>
#include <string>
#include <vector>

#include "core/armazem.h"
#include "core/module1.h"
#include "players/historicos.h"

namespace corvina {

class EscolhaDeJogador {
  public:
    // What the window asks of what lies around it.
    struct Arredores {
        std::function<bool(const std::string&)> perguntaSimNao; // a system yes/no box
        std::function<void()> abreNovoJogador; // modal; leaves its name in nomeJogador
        std::function<void()> iniciaMusica, paraMusica;
    };

    EscolhaDeJogador(Module1& modulo, Armazem& armazem, Historicos& historicos,
                     Arredores arredores);

    // Loading: the list filled and a first entry selected. The cancel command works only when
    // the window was opened from the toolbar.
    void carrega(bool cancelavel);
    // Once per showing: a first player asked for if there is none, the last one selected,
    // the music.
    void primeiraAtivacao();

    // Selects the entry holding exactly this text; an entry the list doesn't hold leaves the
    // selection as it was.
    bool seleciona(const std::string& texto);
    void selecionaLinha(int i);
    void alternaAssistido(); // Label12, Label13
    void jogar();            // Label9, Enter
    void cancelar();         // Label15
    void excluir();          // Label16
    void cadastrar();        // Label8
    // Whatever closes the window: the music stops, the name at the table follows the selection.
    void fecha();
    // A name registered in the new-player window joins the list shown.
    void adiciona(const std::string& nome) { lista_.push_back(nome); }

    const std::vector<std::string>& lista() const { return lista_; }
    int selecionada() const { return selecionada_; } // -1 for none
    std::string textoSelecionado() const;
    bool assistido() const { return assistido_; }
    bool podeCadastrar() const { return lista_.size() < kLimite; }
    bool podeCancelar() const { return cancelavel_; }
    bool fechada() const { return fechada_; }

    // The record of the selected player, as the labels show it.
    std::string jogos = "0", vitorias = "0", derrotas = "0", saldo = "0";
    std::string legendaExcluir = "Excluir";

  private:
    static constexpr std::size_t kLimite = 50;
    void preenche();
    void aoSelecionar(); // Combo1_Click

    Module1& modulo_;
    Armazem& armazem_;
    Historicos& historicos_;
    Arredores arredores_;
    std::vector<std::string> lista_;
    int selecionada_ = -1;
    bool assistido_ = false, cancelavel_ = false, fechada_ = false;
};

} // namespace corvina

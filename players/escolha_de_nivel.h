#pragma once
// The level window as plain state: the opponent and the fair deal of the player at the table,
// chosen, then kept under that player's key when confirmed.

#include <string>

#include "core/armazem.h"
#include "core/module1.h"
#include "machine/niveis.h"

namespace corvina {

class EscolhaDeNivel {
  public:
    EscolhaDeNivel(Module1& modulo, Armazem& armazem);

    void escolhe(TipoNivel n) { nivel_ = n; }
    void alternaJusta();
    // Into the game and under the player's key; the window closes after it.
    void confirma();

    TipoNivel nivel() const { return nivel_; }
    // What the box shows: Esperto and Forte always deal fair, whatever was chosen for Clássico.
    bool justa() const { return justa_ || nivel_ != TipoNivel::Classico; }
    bool justaEscolhivel() const { return nivel_ == TipoNivel::Classico; }

  private:
    Module1& modulo_;
    Armazem& armazem_;
    TipoNivel nivel_;
    bool justa_;
};

// What a player reads of the opponent and the deal on the table.
std::string legendaDoNivel(TipoNivel n);
std::string legendaDaDistribuicao(TipoNivel n, bool distribuicaoJusta);
// One line on each level in the window.
std::string descricaoDoNivel(TipoNivel n);

} // namespace corvina

#pragma once
// The one way in for the player's moves. Every input turns into a Jogada; this checks it
// against the table (a move under way, a card in the air, the machine deciding, what may be
// clicked now) and plays it. A move that waits (flights, the machine's thought) runs on until it
// ends while the window goes on; no other move is taken meanwhile. The hint runs beside the
// moves and is dropped by any of them.

#include <functional>
#include <optional>
#include <vector>

#include "core/jogo.h"
#include "table/dica.h"
#include "table/jogada.h"
#include "table/vista_de_cena.h"

namespace corvina {

class Condutor {
  public:
    Condutor(Jogo& jogo, VistaDeCena& vista) : jogo_(jogo), vista_(vista) {}

    // Whether the table takes nothing now, the one answer for every input and window key: a
    // move under way (its flights, or the machine's turn after it), a card in the air, or the
    // machine's hand at play.
    bool ocupado() const { return emJogada() || jogo_.mesa.animando || jogo_.maosEmJogo; }
    // The mouse holds a card.
    bool arrastando() const { return vista_.cena().gesto.arrastando == 1; }

    Recusa verifica(const Jogada& c) const;
    // Plays the command, or refuses it with the sound of a refused move.
    Recusa executa(const Jogada& c);

    // The mouse's gesture: press on the moving sprite, move it. X, Y in twips inside it.
    Recusa pega(float x, float y);
    void arrasta(float x, float y);
    // The mouse over the player's card in slot `casa`: the moving sprite is laid on it.
    void sobre(int16 casa);
    // A drag left in the middle (a move by a key, a window opened over the table): the card back
    // in its hole.
    void largaArraste();

    // Lays the player's attention out from the table's state, unless a move owns the table.
    void assenta();

    // The hint for the table as it stands now, computed as the machine thinks.
    Recusa pedeDica();
    // The hint on show, while the table is still the one it was given for.
    std::optional<Dica> dica() const;

    // Whatever is under way is dropped: the window closes.
    void cancela();
    // Called when a move or a hint ends, and after every command: repaint, tell the readers.
    std::function<void()> aoMudar;

  private:
    bool emJogada() const {
        return !fechando_ && (entrando_ || (emCurso_ && !emCurso_->terminou()));
    }
    Tarefa<> conduz(Jogada c);
    Tarefa<> descartaDaFila(int16 casa);
    Tarefa<> calculaDica();
    void move(int16 de, int16 para);
    void recusa();
    void avisa();
    std::vector<int16> assinatura() const;

    Jogo& jogo_;
    VistaDeCena& vista_;
    std::optional<Tarefa<>> emCurso_;
    bool entrando_ = false; // a move is being started: it is under way before emCurso_ holds it
    bool fechando_ = false; // a move tells its end: nothing of it remains to run
    std::optional<Tarefa<>> dicaEmCurso_;
    std::optional<Dica> dica_;
    std::vector<int16> assinaturaDaDica_;
};

} // namespace corvina

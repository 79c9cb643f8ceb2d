#pragma once
// The review of a hand: its log stepped through move by move, with both hands face up, and at
// each of the player's throws the throw Forte makes from that same view. Where the two differ,
// what each throw leaves: the cards the hand still lacks and how many unseen cards would help.

#include <optional>
#include <string>
#include <vector>

#include "core/estado_da_mao.h"
#include "core/registro_da_mao.h"

namespace corvina {

// What a throw leaves: the fewest cards the nine still lack, and the unseen copies (in the
// stock or the other hand) of the kinds that would bring it one closer.
struct Saida {
    int faltam = 0;
    int ajudam = 0;
};

struct ComparacaoComForte {
    Carta doJogador, doForte;
    bool igual() const { return doJogador == doForte; }
    Saida saidaDoJogador, saidaDoForte;
};

struct PassoDaRevisao {
    EstadoDaMao estado;                      // after the moves of this step
    std::optional<Lance> lance;              // the move of this step; none at the deal
    std::optional<ComparacaoComForte> forte; // at the player's throws
    std::string texto;                       // the move, and Forte's throw beside the player's
    std::string descricao; // all of it, the cards in sight too, as a screen reader says it
};

struct RevisaoDaMao {
    std::vector<PassoDaRevisao> passos; // the deal, then one per move
    int iguais = 0, lancesDoJogador = 0;
    std::string resumo; // "Você descartou como o Forte em 14 de 17 lances."
};

// Forte is asked once per throw of the player: a few milliseconds each, so off the window's
// thread; without it the steps alone, at once. None when the log doesn't replay.
std::optional<RevisaoDaMao> revisa(const RegistroDaMao& r, bool comForte = true);

// Forte's throw from the view of the log's move `lance`, a throw of either side.
std::optional<Carta> descarteDoForte(const RegistroDaMao& r, std::size_t lance);

} // namespace corvina

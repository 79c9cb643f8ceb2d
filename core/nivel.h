#pragma once
// A player of the machine's seat: it decides from what that seat may know (VisaoDoNivel), and
// the turn flow carries its decisions out on the table. And the levels a seat can be played at.

#include <optional>
#include <string_view>

#include "core/carta.h"

namespace corvina {

struct VisaoDoNivel;

class Nivel {
  public:
    virtual ~Nivel() = default;
    // Nine cards in view: true to take the top of the pile, false to draw from the stock.
    virtual bool pegaDescarte(const VisaoDoNivel& visao) = 0;
    // Ten cards in view, the tenth just taken (from the pile when `doDescarte`): the slot,
    // 1 to 10, that goes to the pile.
    virtual int16 descarte(const VisaoDoNivel& visao, bool doDescarte) = 0;
};

enum class TipoNivel { Classico, Esperto, Forte };

inline constexpr TipoNivel kNiveis[] = {TipoNivel::Classico, TipoNivel::Esperto, TipoNivel::Forte};

// "classico", "esperto", "forte": the names of the store and of requests.
std::string_view chaveDoNivel(TipoNivel n);
std::optional<TipoNivel> nivelDaChave(std::string_view chave);
// "Clássico", "Esperto", "Forte": the names a player reads.
std::string_view nomeDoNivel(TipoNivel n);

// Only Clássico may take the player's better dealt hand, and only while the player lets it.
constexpr bool trocaNaDistribuicao(TipoNivel n, bool distribuicaoJusta) {
    return n == TipoNivel::Classico && !distribuicaoJusta;
}

} // namespace corvina

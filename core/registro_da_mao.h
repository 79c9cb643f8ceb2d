#pragma once
// A hand as it was played: the deal, the stock in its order, and every move of both sides
// (where the card came from, the card, the hand as it stood and the card thrown). Enough to lay
// the hand out again at any of its moves, and to ask a level what it would have thrown there.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/carta.h"
#include "core/lado.h"

namespace corvina {

enum class Origem { Monte, Pilha };
enum class FimDaMao { EmJogo, Jog, Mac, SemMonte };
// How a hand ended, as its log and corvina-cli write it: "emjogo", "jog", "mac", "semmonte".
std::string_view chaveDoFim(FimDaMao fim);

struct Lance {
    Lado lado = Lado::Jog;
    Origem origem = Origem::Monte;
    Carta tomada;
    std::vector<Carta> mao; // the ten cards in slot order as the throw was chosen; empty before
    int16 casa = 0;         // the slot thrown, 1..10; 0 while the throw is still to come

    bool completo() const { return casa != 0; }
    Carta descartada() const { return mao[static_cast<std::size_t>(casa - 1)]; }
};

struct RegistroDaMao {
    std::vector<Carta> jog, mac;        // as dealt, slot order
    std::vector<Carta> monte;           // the stock, the next card to be drawn first
    int16 pontosJog = 0, pontosMac = 0; // the score as the hand was dealt
    std::vector<Lance> lances;
    FimDaMao fim = FimDaMao::EmJogo;

    bool distribuida() const { return jog.size() == kCartasNaMaoDoRegistro; }
    static constexpr std::size_t kCartasNaMaoDoRegistro = 9;

    void toma(Lado lado, Origem origem, Carta c) { lances.push_back({lado, origem, c, {}, 0}); }
    // The throw of the last move; a throw with no draw logged before it is not kept.
    void descarta(Lado lado, std::vector<Carta> mao, int16 casa);
};

// One block of lines, "mao" to "fim". Reading is strict: any line out of place, a card out of
// range, more moves than a stock allows, and the whole block is refused.
std::string escreveRegistro(const RegistroDaMao& r);
std::optional<RegistroDaMao> leRegistro(std::string_view texto);

// The lines of a text one by one, each without its end.
class Linhas {
  public:
    explicit Linhas(std::string_view texto) : resto_(texto) {}
    std::optional<std::string_view> proxima();
    bool acabou() const { return resto_.empty(); }

  private:
    std::string_view resto_;
};

// Reads one block from `linhas`, from its "mao" line to its "fim" line.
std::optional<RegistroDaMao> leRegistro(Linhas& linhas);

} // namespace corvina

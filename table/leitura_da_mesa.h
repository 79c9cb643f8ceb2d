#pragma once
// The table as a screen reader reads it: the player's cards by name, the stock, the top of the
// pile, the machine's row, the line of messages and the score, in words. Plain data, read off
// what the table shows; the screen turns it into accessible objects.

#include <optional>
#include <string>
#include <vector>

#include "core/jogo.h"
#include "table/cena.h"
#include "table/dica.h"

namespace corvina {

enum class Papel { Carta, Baralho, Descarte, MaoDaMaquina, Mensagens, Placar, Ordenar, Dica };

struct ItemDaLeitura {
    Papel papel = Papel::Carta;
    std::string nome;        // read first: "sete de copas", "Baralho"
    std::string descricao;   // read after it: "carta 3", "40 cartas"
    std::vector<Peca> pecas; // where it stands; none for the line of messages
    bool foco = false;       // the card the keys act on
    bool acionavel = false;  // a click or a key on it does something now
    friend bool operator==(const ItemDaLeitura&, const ItemDaLeitura&) = default;
};

// Cards 1.. of the player's row first, then the other parts in the order above. `dica`: the hint
// on show; `livre`: no move under way, so that a command may be taken.
std::vector<ItemDaLeitura> leituraDaMesa(const Jogo& jogo, const Cena& cena,
                                         const std::optional<Dica>& dica = std::nullopt,
                                         bool livre = true);

// The machine's last turn in words: "A CPU comprou do baralho e descartou o rei de paus.";
// empty before its first discard of the hand.
std::string ultimaJogadaDaMaquina(const Historico& historico);

} // namespace corvina

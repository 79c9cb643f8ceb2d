// The machine's last move as the line of messages tells it to a screen reader.

#include <gtest/gtest.h>

#include "apoio/maos.h"
#include "table/leitura_da_mesa.h"

namespace corvina {
namespace {

struct Passo {
    Lado lado;
    bool toma; // takes this card from the pile; else throws it
    const char* carta;
};

struct CasoJogada {
    std::vector<Passo> passos;
    const char* dito;
};

class JogadaDaMaquinaTest : public testing::TestWithParam<CasoJogada> {};

TEST_P(JogadaDaMaquinaTest, TellsWhatItTookAndWhatItThrew) {
    Historico h;
    for (const Passo& p : GetParam().passos) {
        const Carta c = teste::cartas(p.carta).front();
        p.toma ? h.toma(p.lado, c) : h.descarta(p.lado, c);
    }
    EXPECT_EQ(ultimaJogadaDaMaquina(h), GetParam().dito);
}

INSTANTIATE_TEST_SUITE_P(
    Historicos, JogadaDaMaquinaTest,
    testing::Values(
        CasoJogada{{}, ""}, CasoJogada{{{Lado::Jog, false, "7/1"}}, ""},
        CasoJogada{{{Lado::Jog, false, "7/1"}, {Lado::Mac, false, "13/2"}},
                   "A CPU comprou do baralho e descartou o rei de paus."},
        CasoJogada{
            {{Lado::Jog, false, "7/1"}, {Lado::Mac, true, "7/1"}, {Lado::Mac, false, "12/3"}},
            "A CPU pegou o sete de copas do descarte e descartou a dama de ouros."},
        // The player took the machine's card back: the machine's move is still the last one.
        CasoJogada{{{Lado::Mac, true, "5/4"},
                    {Lado::Mac, false, "1/4"},
                    {Lado::Jog, true, "1/4"},
                    {Lado::Jog, false, "9/1"}},
                   "A CPU pegou o cinco de espadas do descarte e descartou o ás de espadas."},
        // A take in an earlier turn says nothing of a later draw from the stock.
        CasoJogada{{{Lado::Mac, true, "5/4"},
                    {Lado::Mac, false, "1/4"},
                    {Lado::Jog, false, "9/1"},
                    {Lado::Mac, false, "2/2"}},
                   "A CPU comprou do baralho e descartou o dois de paus."}));

} // namespace
} // namespace corvina

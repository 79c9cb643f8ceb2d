#pragma once
// A game at a table that draws nothing, with every call kept, for the tests of the flow.

#include <algorithm>
#include <string>
#include <vector>

#include "apoio/maos.h"
#include "core/jogo.h"
#include "core/vista_nula.h"
#include "machine/classico.h"

namespace corvina::teste {

struct JogoDeTeste {
    explicit JogoDeTeste(std::uint64_t semente = 1) : acaso(semente), jogo(vista, acaso, classico) {
        vista.registra = true;
        jogo.modulo.velocidade = 6;
        jogo.modulo.nomeJogador = "Ana";
    }

    // A hand in the middle of play: both hands, the top of the pile, the stock (position 1
    // first, so its last card is drawn first).
    void arma(std::string_view jog, std::string_view mac, std::string_view topo = "",
              std::string_view monte = "") {
        armaMesa(jogo.mesa, jogo.modulo.qtdDescarte, jog, mac, topo, monte);
        vista.chamadas.clear();
    }

    bool chamou(const std::string& linha) const {
        return std::find(vista.chamadas.begin(), vista.chamadas.end(), linha) !=
               vista.chamadas.end();
    }
    // Position of the first call that is `linha`; -1 if none.
    long ordem(const std::string& linha) const {
        const auto it = std::find(vista.chamadas.begin(), vista.chamadas.end(), linha);
        return it == vista.chamadas.end() ? -1 : it - vista.chamadas.begin();
    }
    std::string topo() const {
        return escreveCarta({jogo.mesa.discarteValor, jogo.mesa.discarteNaipe});
    }

    AcasoSemente acaso;
    VistaNula vista;
    Classico classico;
    Jogo jogo;
};

} // namespace corvina::teste

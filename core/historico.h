#pragma once
// What both sides have seen of a hand in the open: every discard, in order, and the cards each
// side took from the pile. Kept so that a player of the machine can know what a person at the
// table would know, and no more.

#include <array>
#include <optional>
#include <vector>

#include "core/carta.h"
#include "core/lado.h"

namespace corvina {

struct Historico {
    std::vector<Carta> descartes;                // both sides, in the order they were thrown
    std::vector<Lado> autores;                   // who threw each of them
    std::array<std::vector<Carta>, 2> tomadas{}; // by side: what each took from the pile
    bool topoTomado = false; // the last card thrown was taken back: no top until the next
    // By side: how many discards had been made when it last took from the pile.
    std::array<std::optional<std::size_t>, 2> ultimaTomada{};

    void descarta(Lado lado, Carta c) {
        descartes.push_back(c);
        autores.push_back(lado);
        topoTomado = false;
    }
    void toma(Lado lado, Carta c) {
        tomadasPor(lado).push_back(c);
        topoTomado = true;
        ultimaTomada[indice(lado)] = descartes.size();
    }

    static std::size_t indice(Lado lado) { return lado == Lado::Jog ? 0 : 1; }
    std::vector<Carta>& tomadasPor(Lado lado) { return tomadas[indice(lado)]; }
    const std::vector<Carta>& tomadasPor(Lado lado) const { return tomadas[indice(lado)]; }
    std::optional<std::size_t> ultimaTomadaDe(Lado lado) const {
        return ultimaTomada[indice(lado)];
    }
    void limpa() {
        descartes.clear();
        autores.clear();
        for (auto& t : tomadas) t.clear();
        topoTomado = false;
        ultimaTomada = {};
    }
};

} // namespace corvina

#pragma once
// The levels a seat can be played at, by name, and how each is made.

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "core/nivel.h"

namespace corvina {

enum class TipoNivel { Classico, Esperto, Forte };

inline constexpr TipoNivel kNiveis[] = {TipoNivel::Classico, TipoNivel::Esperto, TipoNivel::Forte};

// "classico", "esperto", "forte": the names of files and requests.
std::string_view chaveDoNivel(TipoNivel n);
std::optional<TipoNivel> nivelDaChave(std::string_view chave);
// "Clássico", "Esperto", "Forte": the names a player reads.
std::string_view nomeDoNivel(TipoNivel n);

// A level that samples draws its chance from `semente` and what it sees, nothing else.
std::unique_ptr<Nivel> criaNivel(TipoNivel n, std::uint64_t semente);

// Only Clássico may take the player's better dealt hand; the others play a fair deal always.
constexpr bool trocaNaDistribuicao(TipoNivel n) {
    return n == TipoNivel::Classico;
}

} // namespace corvina

#pragma once
// The two sides of the table. The keys "Jog" and "Mac" exist only at the edges (files, JSON).

#include <optional>
#include <string_view>

namespace corvina {

enum class Lado { Jog, Mac };

constexpr std::string_view chaveDoLado(Lado lado) {
    return lado == Lado::Jog ? "Jog" : "Mac";
}

// Compared exactly, as the game always has: "jog" is no side.
constexpr std::optional<Lado> ladoDaChave(std::string_view chave) {
    if (chave == "Jog") return Lado::Jog;
    if (chave == "Mac") return Lado::Mac;
    return std::nullopt;
}

} // namespace corvina

#pragma once
// Every level of the machine's seat, in one table: what it is, what the store, the history and
// corvina-cli call it, what a player reads of it, and how it is made. Everything else reads the
// table; a new level is one more entry here (and its kind in TipoNivel).

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/nivel.h"
#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"

namespace corvina {

struct DadosDoNivel {
    TipoNivel tipo;
    std::string_view chave;     // in the store and in corvina-cli's requests
    std::string_view nome;      // as a player reads it
    std::string_view descricao; // under its name in the level window
    char codigo;                // in the stored histories: never changed once shipped
    std::unique_ptr<Nivel> (*cria)();
};

// In the order the windows list them. No level draws on chance: each decides alike on the same
// view, so any match replays.
inline constexpr std::array<DadosDoNivel, 3> kNiveisDoJogo = {{
    {TipoNivel::Classico, "classico", "Clássico", "A máquina de sempre; pode trocar as mãos.", 'c',
     []() -> std::unique_ptr<Nivel> { return std::make_unique<Classico>(); }},
    {TipoNivel::Esperto, "esperto", "Esperto", "Conta as cartas que faltam e as que já saíram.",
     'e', []() -> std::unique_ptr<Nivel> { return std::make_unique<Esperto>(); }},
    {TipoNivel::Forte, "forte", "Forte", "Pensa duas compras adiante. O mais difícil.", 'f',
     []() -> std::unique_ptr<Nivel> { return std::make_unique<Forte>(); }},
}};

const DadosDoNivel& dadosDoNivel(TipoNivel n);
// The level's place in the table, 0 first.
std::size_t indiceDoNivel(TipoNivel n);
std::optional<TipoNivel> nivelDaChave(std::string_view chave);
std::optional<TipoNivel> nivelDoCodigo(char codigo);
// "\"classico\", \"esperto\" or \"forte\"": the keys, as corvina-cli's messages list them.
std::string chavesDosNiveis();

inline std::unique_ptr<Nivel> criaNivel(TipoNivel n) {
    return dadosDoNivel(n).cria();
}

} // namespace corvina

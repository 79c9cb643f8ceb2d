#pragma once
// What outlives the table window or is shared with the small windows.

#include <string>

#include "core/carta.h"
#include "core/nivel.h"

namespace corvina {

inline constexpr int16 kPontosDaPartida = 4; // hands that win a match; fixed, never a setting

struct Module1 {
    int16 pontosJog = 0, pontosMac = 0;
    std::string nomeJogador;
    int16 assistido = 0;
    bool nomeCancelado = false;
    int16 qtdDescarte = 0;
    int16 tipoCarta = 0;
    int16 velocidade = 0;
    bool tocarSom = false;
    bool tocarMusica = false;
    bool animarCartas = false;
    bool avisoOrdenar = false;
    // The player's opponent, and whether the deal may hand the machine the better hand.
    TipoNivel nivel = TipoNivel::Classico;
    bool distribuicaoJusta = false;
    // How large the table is drawn, in percent of 800 by 600 pixels.
    int tamanhoDaMesa = 100;
};

} // namespace corvina

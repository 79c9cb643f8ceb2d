#pragma once
// Short names for the sprites the procedures of the table speak of.

#include "core/vista_mesa.h"

namespace corvina::peca {

inline constexpr Peca kPicmover{Parte::Picmover};
inline constexpr Peca kDiscartado2{Parte::discartado2};
inline constexpr Peca kDiscartado{Parte::Discartado};
inline constexpr Peca kCostas2{Parte::costas2};
inline constexpr Peca kCostas{Parte::costas};
inline constexpr Peca kLabel4{Parte::Label4};
inline constexpr Peca kPlacar1{Parte::Placar1};
inline constexpr Peca kPlacar2{Parte::Placar2};
inline constexpr Peca kAntes{Parte::antes};
inline constexpr Peca kVazio{Parte::vazio};
constexpr Peca cj(int i) {
    return {Parte::cj, static_cast<int16>(i)};
}
constexpr Peca cm(int i) {
    return {Parte::cm, static_cast<int16>(i)};
}
constexpr Peca picture8(int i) {
    return {Parte::Picture8, static_cast<int16>(i)};
}
constexpr Peca picture3(int i) {
    return {Parte::Picture3, static_cast<int16>(i)};
}
constexpr Peca ramo(int valor) {
    return {Parte::ramo, static_cast<int16>(valor)};
}

} // namespace corvina::peca

namespace corvina {

inline void copiaLugar(VistaMesa& v, Peca destino, Peca origem) {
    v.poeLugar(destino, v.lugar(origem));
}

inline Tarefa<> voaPara(VistaMesa& v, Peca sprite, Peca alvo, double fator) {
    const Lugar l = v.lugar(alvo);
    return v.voaCarta(sprite, l.left, l.top, fator);
}

} // namespace corvina

// Steps of a flight for each unit of `velocidade`.
namespace corvina::voo {
inline constexpr double kCompraDoBaralho = 2.5;
inline constexpr double kCompraDoDescarte = 1.5;
inline constexpr double kDescarte = 2;
inline constexpr double kVoltaParaMao = 1;
} // namespace corvina::voo

namespace corvina::pausa {
inline constexpr int kChegada = 100; // a card that arrives, a card that leaves
inline constexpr int kDepoisDoDescarteDaMaquina = 200;
} // namespace corvina::pausa

#pragma once
// Names and readings of the store: keys, value names, and how texts become numbers.

#include <string>
#include <string_view>

namespace corvina {

inline constexpr const char* kTitulo = "Corvina";

inline constexpr int kVersos = 8;            // card backs 1..8
inline constexpr int kVelocidadeMinima = 1;  // the fastest flights
inline constexpr int kVelocidadeMaxima = 16; // the slowest
inline constexpr int kVelocidadePadrao = 6;

std::string chaveBase();                         // Software\Lunaris\Corvina
std::string chaveJogador(std::string_view nome); // the name unchanged, below chaveBase

namespace ajuste {
inline constexpr const char* kTipocarta = "Tipocarta"; // read so, written as TipoCarta: one value
inline constexpr const char* kTipoCarta = "TipoCarta";
inline constexpr const char* kVelocidade = "Velocidade";
inline constexpr const char* kTocarSom = "TocarSom";
inline constexpr const char* kTocarMusica = "TocarMusica";
inline constexpr const char* kAnimarCartas = "AnimarCartas";
inline constexpr const char* kAvisoOrdenar = "AvisoOrdenar";
inline constexpr const char* kPrimeiraVez = "we";
inline constexpr const char* kUltimoJogador = "UltimoJogador";
inline constexpr const char* kNomeJogador = "NomeJogador";
inline constexpr const char* kVitorias = "Vitorias";
inline constexpr const char* kDerrotas = "Derrotas";
inline constexpr const char* kSaldo = "Saldo";
inline constexpr const char* kAssistido = "Assistido";
inline constexpr const char* kNivel = "Nivel";                         // "classico", ...
inline constexpr const char* kDistribuicaoJusta = "DistribuicaoJusta"; // "True" / "False"
inline constexpr const char* kQuatroCores = "QuatroCores"; // the four-colour deck, "True" / "False"
inline constexpr const char* kTamanhoDaMesa = "TamanhoDaMesa"; // "100" .. "300", in percent
std::string jogador(int n);                                    // Jogador1 .. Jogador50
} // namespace ajuste

// The number at the start of a text, sign included; 0 for an empty or non-numeric text.
long numeroDoTexto(std::string_view texto);
// "True" and "False" in any case, or a number (not 0 is True); anything else is False.
bool booleanoDoTexto(std::string_view texto);
inline std::string textoBooleano(bool b) {
    return b ? "True" : "False";
}

// A default of "True", in any case, reads as "1".
std::string padraoDeLeitura(std::string_view padrao);

// Keys and value names are compared without regard to case, accented capitals included.
std::string dobraCaixa(std::string_view texto);

} // namespace corvina

#pragma once
// Everything the table shows, as plain data: the sprites of the cards with their places in
// twips, the picture holders, and the texts of the labels. The screen only paints this.

#include <array>
#include <string>
#include <vector>

#include "core/textos.h"
#include "core/vista_mesa.h"
#include "table/gesto.h"

namespace corvina {

inline constexpr int kTwipsPorPixel = 15;
inline constexpr float kLarguraCarta = 1065; // 71 pixels
inline constexpr float kAlturaCarta = 1440;  // 96 pixels

// A picture the table can show: none, one of the 52 faces, one of the 8 backs.
using Figura = int16;
inline constexpr Figura kSemFigura = 0;
constexpr Figura figuraDaFace(int naipe, int valor) {
    return static_cast<Figura>((naipe - 1) * kValores + valor);
}
inline constexpr Figura kPrimeiroVerso = 100;
inline constexpr int kVersoDoDesenho = 4;
constexpr Figura figuraDoVerso(int tipo) {
    return static_cast<Figura>(kPrimeiroVerso + tipo);
}

struct Sprite {
    float Left = 0, Top = 0;
    float Width = kLarguraCarta, Height = kAlturaCarta;
    bool Visible = false;
    bool Enabled = true;
    Figura Picture = kSemFigura;
    Ponteiro MousePointer = Ponteiro::padrao;
    bool contorno = false; // cut to the card's outline: the key colour of the corners is clear
};

// The labels of the table.
struct Textos {
    std::string prompt = texto::kPegueNoBaralho; // Label1, the window's first text
    std::string aviso;                           // Label6
    bool avisoVisivel = false;
    std::string status; // the trincas, in assisted mode
    bool statusVisivel = false;
    bool imgNTrincasVisivel = true;
    std::string placar1 = "0", placar2 = "0";
    std::string label10, label11;
    std::string label4 = texto::kOrdenar;
};

class Cena {
  public:
    Cena();

    Sprite& operator[](Peca peca);
    const Sprite& operator[](Peca peca) const;
    // The picture a sprite, a holder or a picture set (faces by value, backs) gives.
    Figura figuraDe(Peca peca) const;

    // Back to front; Picmover can be brought to the front.
    const std::vector<Peca>& ordem() const { return ordem_; }
    void paraFrente(Peca peca);

    Textos textos;
    // The player's card the keys act on, slot 1..; 0 while the keys have not chosen one.
    int16 foco = 0;
    Gesto gesto;

  private:
    std::array<Sprite, 11> cj_{}, cm_{};
    std::array<Sprite, 5> picture8_{}, picture3_{};
    Sprite picmover_, discartado2_, discartado_, costas2_, costas_;
    Sprite label4_, placar1_, placar2_;
    Sprite antes_, vazio_, intermediario_, nenhum_;
    std::vector<Peca> ordem_;
};

} // namespace corvina

#pragma once
// The geometry of the block progress bar, in pixels: what the painter draws, worked out here.

#include <cstdint>

namespace corvina {

struct Cor {
    int r = 0, g = 0, b = 0;
    friend constexpr bool operator==(const Cor&, const Cor&) = default;
};

inline constexpr int kBordaInterna = 3; // the inner left edge
inline constexpr int kBloco = 6, kVao = 2, kPasso = kBloco + kVao;

// Value * 100 / Max + Min, to the nearest whole number, at most 100.
int percentualDaBarra(long valor, long maximo, long minimo);

// Where the blocks end: the inner width * percentage / 98 past the inner edge, cut back to a
// whole number of steps from it and kept inside the bar; below 15 it is 12, so that a first
// block shows from the start.
int fimDoPreenchimento(int largura, int percentual);

// The colour lightened for the gradients: each channel c becomes c * 105 / 255 + 150.
Cor tinta(Cor cor);

} // namespace corvina

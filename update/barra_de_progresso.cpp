#include "update/barra_de_progresso.h"

#include <algorithm>
#include <cmath>

namespace corvina {

namespace {
inline constexpr double kDivisor = 98; // the bar is full shortly before its end
inline constexpr int kMinimo = 15, kPrimeiroBloco = 12;
inline constexpr int kClareia = 150;
} // namespace

int percentualDaBarra(long valor, long maximo, long minimo) {
    if (maximo == 0) return 0;
    const double p = std::nearbyint(static_cast<double>(valor) * 100.0 / maximo + minimo);
    return static_cast<int>(std::clamp(p, 0.0, 100.0));
}

int fimDoPreenchimento(int largura, int percentual) {
    const int interna = largura - 2 * kBordaInterna;
    int x = static_cast<int>(std::lround(interna * percentual / kDivisor)) + kBordaInterna;
    x = kBordaInterna + (x - kBordaInterna) / kPasso * kPasso;
    const int ultimo = kBordaInterna + interna / kPasso * kPasso;
    x = std::clamp(x, kBordaInterna, std::max(ultimo, kBordaInterna));
    return x < kMinimo ? kPrimeiroBloco : x;
}

Cor tinta(Cor cor) {
    const auto clareia = [](int c) { return std::min(255, c * (255 - kClareia) / 255 + kClareia); };
    return {clareia(cor.r), clareia(cor.g), clareia(cor.b)};
}

} // namespace corvina

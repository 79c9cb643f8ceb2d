#include "machine/amostrador.h"

#include <algorithm>
#include <utility>

#include "core/mesa.h"

namespace corvina {

Amostrador::Amostrador(const VisaoDoNivel& v) : k_(conhecimentoDe(v)) {
    int conhecidas = 0;
    for (int t = 0; t < kTipos; ++t) {
        conhecidas += k_.doOutro[t];
        for (int c = 0; c < k_.invisiveis[t]; ++c)
            invisiveis_.push_back(static_cast<std::uint8_t>(t));
    }
    const int unseen = static_cast<int>(invisiveis_.size());
    faltamAoOutro_ = std::clamp(kCartasNaMao - conhecidas, 0, unseen);
    monte_ = std::clamp<int>(v.monte, 0, unseen - faltamAoOutro_);
}

Mundo Amostrador::sorteia(std::mt19937_64& sorte) const {
    Mundo m;
    m.doOutro = k_.doOutro;
    std::vector<std::uint8_t> resto = invisiveis_;
    // A partial Fisher-Yates: the first cards drawn go to the other hand, the next to the stock.
    const int usadas = faltamAoOutro_ + monte_;
    for (int i = 0; i < usadas; ++i) {
        std::uniform_int_distribution<int> d(i, static_cast<int>(resto.size()) - 1);
        std::swap(resto[static_cast<std::size_t>(i)], resto[static_cast<std::size_t>(d(sorte))]);
    }
    for (int i = 0; i < faltamAoOutro_; ++i) ++m.doOutro[resto[static_cast<std::size_t>(i)]];
    m.monte.assign(resto.begin() + faltamAoOutro_, resto.begin() + usadas);
    return m;
}

} // namespace corvina

#include "apoio/baralho_roteiro.h"

#include <array>

#include "apoio/maos.h"

namespace corvina::teste {

Embaralhado baralhoCom(std::string_view primeiras) {
    Embaralhado ids{};
    std::array<bool, kCartasNoJogo + 1> usado{};
    int p = 1;
    for (const Carta c : cartas(primeiras)) {
        auto id = static_cast<int16>((c.naipe - 1) * kValores + c.valor);
        if (usado[id]) id = static_cast<int16>(id + kCartasPorBaralho);
        usado[id] = true;
        ids[p++] = id;
    }
    for (int16 id = 1; id <= kCartasNoJogo; ++id)
        if (!usado[id]) ids[p++] = id;
    return ids;
}

AcasoRoteiro::AcasoRoteiro(const Embaralhado& ids) : ids_(ids.begin() + 1, ids.end()) {}

double AcasoRoteiro::rnd() {
    if (proximo_ == ids_.size()) return depois_.rnd();
    // The shuffle takes Int(topo * rnd) + 1: the middle of the id's interval gives the id.
    const int16 r = ids_[proximo_++];
    const double valor = (r - 0.5) / topo_;
    if (r == topo_) --topo_;
    return valor;
}

} // namespace corvina::teste

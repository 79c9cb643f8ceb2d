#include "core/acaso.h"

#include <chrono>

namespace corvina {

namespace {
double umAbaixoDeUm(std::mt19937_64& g) {
    // 53 random bits: every double in [0, 1) that the draw can give, never 1 itself.
    return static_cast<double>(g() >> 11) * 0x1.0p-53;
}
} // namespace

double AcasoSemente::rnd() {
    return umAbaixoDeUm(gerador_);
}

AcasoDoRelogio::AcasoDoRelogio() : gerador_(std::random_device{}()) {}

void AcasoDoRelogio::mexe() {
    using namespace std::chrono;
    const auto agora = system_clock::now().time_since_epoch();
    const auto segundos = duration_cast<seconds>(agora).count() % 86400;
    // Advancing by a clock-given amount stirs the sequence without starting it again.
    gerador_.discard(static_cast<unsigned long long>(segundos % 7));
}

double AcasoDoRelogio::rnd() {
    return umAbaixoDeUm(gerador_);
}

bool Sorte(Acaso& acaso, int percentual) {
    acaso.mexe();
    const int r = static_cast<int>(acaso.rnd() * 100) + 1;
    return r <= percentual;
}

} // namespace corvina

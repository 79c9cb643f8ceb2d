#include "machine/nivel_da_mesa.h"

#include <chrono>
#include <future>

namespace corvina {

namespace {
inline constexpr auto kPausaDoPensamento = std::chrono::milliseconds(5);
}

// The levels that answer at once; Forte goes through semTravar.
Nivel& NivelDaMesa::imediato() {
    if (modulo_ && modulo_->nivel == TipoNivel::Esperto) return esperto_;
    return classico_;
}

template <class F> auto NivelDaMesa::semTravar(F&& f) {
    if (!enquantoPensa_) return f();
    // The view is a copy held by the caller until the answer comes: nothing is shared.
    auto resposta = std::async(std::launch::async, std::forward<F>(f));
    while (resposta.wait_for(kPausaDoPensamento) != std::future_status::ready) enquantoPensa_();
    return resposta.get();
}

bool NivelDaMesa::pegaDescarte(const VisaoDoNivel& visao) {
    if (forte()) return fortePegaDescarte(visao);
    return imediato().pegaDescarte(visao);
}

int16 NivelDaMesa::descarte(const VisaoDoNivel& visao, bool doDescarte) {
    if (forte()) return forteDescarta(visao, doDescarte);
    return imediato().descarte(visao, doDescarte);
}

bool NivelDaMesa::fortePegaDescarte(const VisaoDoNivel& visao) {
    return semTravar([&] { return forte_.pegaDescarte(visao); });
}

int16 NivelDaMesa::forteDescarta(const VisaoDoNivel& visao, bool doDescarte) {
    return semTravar([&] { return forte_.descarte(visao, doDescarte); });
}

} // namespace corvina

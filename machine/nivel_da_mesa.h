#pragma once
// The machine's seat at the table: the level the player chose, read at every decision, so that
// a change in the level window counts from the next turn on. A level that thinks for long does
// so on a thread of its own while the window goes on answering.

#include <functional>

#include "core/module1.h"
#include "core/nivel.h"
#include "machine/classico.h"
#include "machine/esperto.h"
#include "machine/forte.h"

namespace corvina {

class NivelDaMesa : public Nivel {
  public:
    // `enquantoPensa` runs again and again while Forte thinks (the window's events); without
    // it Forte thinks on the caller's thread.
    explicit NivelDaMesa(std::function<void()> enquantoPensa = {})
        : enquantoPensa_(std::move(enquantoPensa)) {}
    // The settings whose level it plays; until then, Clássico.
    void segue(const Module1& modulo) { modulo_ = &modulo; }

    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

    // Forte's choice for any seat, thought as the machine's are: the player's hint.
    bool fortePegaDescarte(const VisaoDoNivel& visao);
    int16 forteDescarta(const VisaoDoNivel& visao, bool doDescarte);

  private:
    Nivel& imediato();
    bool forte() const { return modulo_ && modulo_->nivel == TipoNivel::Forte; }
    template <class F> auto semTravar(F&& f);

    const Module1* modulo_ = nullptr;
    Classico classico_;
    Esperto esperto_;
    Forte forte_;
    std::function<void()> enquantoPensa_;
};

} // namespace corvina

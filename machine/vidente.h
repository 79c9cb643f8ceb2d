#pragma once
// The seer: an analysis tool for the arena, never a level a player can meet. It plays by the
// hint's search, but on the one real world: the other hand and the order of the stock as they
// lie on the table. What it wins against a level bounds what any level could win by reading
// the table better.

#include <optional>
#include <utility>

#include "core/jogo.h"
#include "core/nivel.h"
#include "machine/busca.h"

namespace corvina {

class Vidente : public Nivel {
  public:
    // One world, the real one: the worlds played differ only in the playouts' draws of lots,
    // so a few of them are enough.
    explicit Vidente(Orcamento orcamento = {.mundos = kMundos}) : orcamento_(orcamento) {}
    // The table it sees whole, and its own seat there; or, outside a table, the other hand and
    // the stock as they lie. Until then it draws and throws as Esperto would, unseen.
    void ve(const Jogo& jogo, Lado lado) { jogo_ = &jogo, lado_ = lado; }
    void ve(Mundo real) { real_ = std::move(real); }

    bool pegaDescarte(const VisaoDoNivel& visao) override;
    int16 descarte(const VisaoDoNivel& visao, bool doDescarte) override;

  private:
    static constexpr int kMundos = 16;
    FonteDeMundos mundoReal() const;

    Orcamento orcamento_;
    const Jogo* jogo_ = nullptr;
    std::optional<Mundo> real_;
    Lado lado_ = Lado::Mac;
};

} // namespace corvina

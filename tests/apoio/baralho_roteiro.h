#pragma once
// Shuffles that come out as a test wants them.

#include <string_view>
#include <vector>

#include "core/acaso.h"
#include "core/distribue.h"

namespace corvina::teste {

// A deck whose positions 1..n hold these cards, the other ids after them in order.
Embaralhado baralhoCom(std::string_view primeiras);

// Answers the shuffle's draws so that it gives this deck; after it, a seeded generator.
class AcasoRoteiro : public Acaso {
  public:
    explicit AcasoRoteiro(const Embaralhado& ids);
    void mexe() override {}
    double rnd() override;

  private:
    std::vector<int16> ids_;
    std::size_t proximo_ = 0;
    int16 topo_ = kCartasNoJogo;
    AcasoSemente depois_{1};
};

} // namespace corvina::teste

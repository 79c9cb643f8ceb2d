#pragma once
// Chance, from the outside: the shuffle and Sorte draw from here, so a seed replays a match.

#include <cstdint>
#include <random>

namespace corvina {

class Acaso {
  public:
    virtual ~Acaso() = default;
    // Stirred with the time of day before every draw; never restarts the sequence.
    virtual void mexe() = 0;
    // A number from 0 up to but not including 1.
    virtual double rnd() = 0;
};

// Replays: the same seed gives the same shuffles and the same luck. The clock stays out.
class AcasoSemente : public Acaso {
  public:
    explicit AcasoSemente(std::uint64_t semente) : gerador_(semente) {}
    void mexe() override {}
    double rnd() override;

  private:
    std::mt19937_64 gerador_;
};

// The game's own: seeded by the system, stirred by the seconds since midnight.
class AcasoDoRelogio : public Acaso {
  public:
    AcasoDoRelogio();
    void mexe() override;
    double rnd() override;

  private:
    std::mt19937_64 gerador_;
};

// True with that probability in 100: Int(Rnd * 100) + 1 <= percentual.
bool Sorte(Acaso& acaso, int percentual);

} // namespace corvina

#pragma once
// Small building blocks of sound: oscillators, envelopes, a resonant filter, and the finishing
// of a sound (fades at both ends, matched loudness). Mono, floating point, 44.1 kHz.

#include <cstdint>
#include <string>
#include <vector>

namespace gera {

inline constexpr int kTaxa = 44100;
using Amostras = std::vector<float>;

// A repeatable noise: the same sounds come out of every run.
class Ruido {
  public:
    explicit Ruido(std::uint32_t semente) : estado_(semente) {}
    float proximo(); // -1..1

  private:
    std::uint32_t estado_;
};

// A two-pole filter whose centre can move from sample to sample.
class Filtro {
  public:
    enum class Tipo { PassaBaixa, PassaBanda, PassaAlta };
    explicit Filtro(Tipo tipo) : tipo_(tipo) {}
    float processa(float x, float frequencia, float q);

  private:
    Tipo tipo_;
    float x1_ = 0, x2_ = 0, y1_ = 0, y2_ = 0;
};

int amostrasDe(double segundos);
// Attack in a straight line, then an exponential fall with the given half-life.
float envelope(double t, double ataque, double meiaVida);
// A pitched voice with a few partials: `brilho` 0 is a pure tone, 1 a bright brassy one.
float voz(double fase, double brilho);
double frequenciaDaNota(int midi);

// Adds `fonte` into `destino` from `inicio` on, growing it when needed.
void mistura(Amostras& destino, const Amostras& fonte, int inicio, float ganho = 1);

// Short fades at both ends, a gentle limiter, and the loudness brought to `rmsAlvo` (dBFS)
// with the peak kept under `picoMaximo` (dBFS).
void acaba(Amostras& s, double rmsAlvo, double picoMaximo = -1.0);
double rmsDb(const Amostras& s);
double picoDb(const Amostras& s);

// 16-bit PCM mono WAVE.
bool gravaWav(const std::string& caminho, const Amostras& s);

} // namespace gera

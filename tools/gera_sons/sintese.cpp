#include "sintese.h"

#include <algorithm>
#include <cmath>
#include <fstream>

namespace gera {

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kFade = 0.004; // seconds at each end: no click when a sound starts or is cut

void poe16(std::ofstream& f, std::uint16_t v) {
    const char b[2] = {static_cast<char>(v & 0xFF), static_cast<char>(v >> 8)};
    f.write(b, 2);
}
void poe32(std::ofstream& f, std::uint32_t v) {
    poe16(f, static_cast<std::uint16_t>(v & 0xFFFF));
    poe16(f, static_cast<std::uint16_t>(v >> 16));
}
} // namespace

float Ruido::proximo() {
    // xorshift32: small, fast and the same on every machine.
    estado_ ^= estado_ << 13;
    estado_ ^= estado_ >> 17;
    estado_ ^= estado_ << 5;
    return static_cast<float>(estado_) / 2147483648.0f - 1.0f;
}

float Filtro::processa(float x, float frequencia, float q) {
    const double w = 2 * kPi * std::clamp(frequencia, 20.0f, kTaxa * 0.45f) / kTaxa;
    const double alfa = std::sin(w) / (2 * q);
    const double c = std::cos(w);
    double b0, b1, b2;
    switch (tipo_) {
    case Tipo::PassaBaixa:
        b0 = (1 - c) / 2, b1 = 1 - c, b2 = (1 - c) / 2;
        break;
    case Tipo::PassaAlta:
        b0 = (1 + c) / 2, b1 = -(1 + c), b2 = (1 + c) / 2;
        break;
    default:
        b0 = alfa, b1 = 0, b2 = -alfa;
        break;
    }
    const double a0 = 1 + alfa, a1 = -2 * c, a2 = 1 - alfa;
    const double y = (b0 * x + b1 * x1_ + b2 * x2_ - a1 * y1_ - a2 * y2_) / a0;
    x2_ = x1_, x1_ = x;
    y2_ = y1_, y1_ = static_cast<float>(y);
    return y1_;
}

int amostrasDe(double segundos) {
    return static_cast<int>(std::lround(segundos * kTaxa));
}

float envelope(double t, double ataque, double meiaVida) {
    if (t < 0) return 0;
    if (t < ataque) return static_cast<float>(t / ataque);
    return static_cast<float>(std::exp2(-(t - ataque) / meiaVida));
}

float voz(double fase, double brilho) {
    double v = std::sin(2 * kPi * fase);
    double peso = brilho;
    for (int h = 2; h <= 8 && peso > 0.001; ++h, peso *= brilho * 0.8)
        v += peso / h * std::sin(2 * kPi * fase * h);
    return static_cast<float>(v / (1 + brilho));
}

double frequenciaDaNota(int midi) {
    return 440.0 * std::exp2((midi - 69) / 12.0);
}

void mistura(Amostras& destino, const Amostras& fonte, int inicio, float ganho) {
    if (destino.size() < inicio + fonte.size()) destino.resize(inicio + fonte.size(), 0.0f);
    for (std::size_t i = 0; i < fonte.size(); ++i) destino[inicio + i] += ganho * fonte[i];
}

double rmsDb(const Amostras& s) {
    double soma = 0;
    for (const float x : s) soma += double(x) * x;
    return 10 * std::log10(std::max(soma / std::max<std::size_t>(s.size(), 1), 1e-12));
}

double picoDb(const Amostras& s) {
    float pico = 0;
    for (const float x : s) pico = std::max(pico, std::fabs(x));
    return 20 * std::log10(std::max(pico, 1e-9f));
}

void acaba(Amostras& s, double rmsAlvo, double picoMaximo) {
    const int fade = std::min<int>(amostrasDe(kFade), static_cast<int>(s.size() / 2));
    for (int i = 0; i < fade; ++i) {
        const float g = static_cast<float>(i) / fade;
        s[i] *= g;
        s[s.size() - 1 - i] *= g;
    }
    const double ganhoRms = std::pow(10.0, (rmsAlvo - rmsDb(s)) / 20);
    const double ganhoPico = std::pow(10.0, (picoMaximo - picoDb(s)) / 20);
    const double ganho = std::min(ganhoRms, ganhoPico * 1.4); // the limiter takes the rest
    const double teto = std::pow(10.0, picoMaximo / 20);
    for (float& x : s) x = static_cast<float>(teto * std::tanh(ganho * x / teto));
}

bool gravaWav(const std::string& caminho, const Amostras& s) {
    std::ofstream f(caminho, std::ios::binary);
    if (!f) return false;
    const auto bytes = static_cast<std::uint32_t>(s.size() * 2);
    f.write("RIFF", 4);
    poe32(f, 36 + bytes);
    f.write("WAVEfmt ", 8);
    poe32(f, 16);
    poe16(f, 1); // PCM
    poe16(f, 1); // mono
    poe32(f, kTaxa);
    poe32(f, kTaxa * 2);
    poe16(f, 2);
    poe16(f, 16);
    f.write("data", 4);
    poe32(f, bytes);
    for (const float x : s)
        poe16(f, static_cast<std::uint16_t>(
                     static_cast<std::int16_t>(std::lround(std::clamp(x, -1.0f, 1.0f) * 32767))));
    return static_cast<bool>(f);
}

} // namespace gera

#include "sons.h"

#include <cmath>

namespace gera {

namespace {
constexpr double kPi = 3.14159265358979323846;

// Noise through a band that moves from `de` to `ate` Hz over the sound.
Amostras ruidoVarrido(double segundos, float de, float ate, float q, double ataque, double meiaVida,
                      std::uint32_t semente) {
    Ruido r(semente);
    Filtro f(Filtro::Tipo::PassaBanda);
    Amostras s(amostrasDe(segundos));
    for (std::size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / kTaxa;
        const float centro = de * std::pow(ate / de, static_cast<float>(t / segundos));
        s[i] = f.processa(r.proximo(), centro, q) * envelope(t, ataque, meiaVida);
    }
    return s;
}

// A tuned note: partials that soften as it decays, a touch of vibrato after the attack.
Amostras nota(int midi, double segundos, double brilho, double ataque, double meiaVida,
              double vibrato = 0) {
    Amostras s(amostrasDe(segundos));
    const double f0 = frequenciaDaNota(midi);
    double fase = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / kTaxa;
        const float e = envelope(t, ataque, meiaVida);
        const double v = vibrato * std::min(1.0, t / 0.25) * std::sin(2 * kPi * 5.2 * t);
        fase += f0 * (1 + v) / kTaxa;
        s[i] = voz(fase, brilho * (0.4 + 0.6 * e)) * e;
    }
    // Release: the last 60 ms fall away rather than stop.
    const int cauda = std::min<int>(amostrasDe(0.06), static_cast<int>(s.size()));
    for (int i = 0; i < cauda; ++i) s[s.size() - 1 - i] *= static_cast<float>(i) / cauda;
    return s;
}
} // namespace

Amostras deslizaCarta() {
    Amostras s = ruidoVarrido(0.16, 5200, 1600, 0.9f, 0.012, 0.035, 11);
    // The card settling: a low, short thud under the slide.
    Amostras batida = nota(45, 0.07, 0.0, 0.002, 0.018);
    mistura(s, batida, amostrasDe(0.10), 0.35f);
    acaba(s, -20);
    return s;
}

Amostras estalaCarta() {
    Amostras s = ruidoVarrido(0.09, 3400, 2200, 2.2f, 0.0015, 0.012, 23);
    Amostras corpo = nota(62, 0.06, 0.2, 0.001, 0.010);
    mistura(s, corpo, 0, 0.25f);
    acaba(s, -20);
    return s;
}

Amostras cliqueBotao() {
    Amostras s = ruidoVarrido(0.035, 4200, 3000, 3.0f, 0.0008, 0.004, 37);
    Amostras tom = nota(84, 0.03, 0.1, 0.0008, 0.006);
    mistura(s, tom, 0, 0.5f);
    acaba(s, -22);
    return s;
}

Amostras negado() {
    Amostras s;
    for (int k = 0; k < 2; ++k) {
        Amostras zumbido(amostrasDe(0.13));
        Filtro f(Filtro::Tipo::PassaBaixa);
        double fase1 = 0, fase2 = 0;
        for (std::size_t i = 0; i < zumbido.size(); ++i) {
            const double t = double(i) / kTaxa;
            fase1 += 155.0 / kTaxa;
            fase2 += 158.5 / kTaxa;
            // Two slightly detuned buzzy tones, rounded off by a low-pass.
            const float x = static_cast<float>(std::tanh(3 * std::sin(2 * kPi * fase1)) +
                                               std::tanh(3 * std::sin(2 * kPi * fase2)));
            const float e = std::min(1.0f, static_cast<float>(t / 0.01)) *
                            std::min(1.0f, static_cast<float>((0.13 - t) / 0.03));
            zumbido[i] = f.processa(x, 1100, 0.7f) * e;
        }
        mistura(s, zumbido, amostrasDe(0.17 * k));
    }
    acaba(s, -21);
    return s;
}

Amostras erroDeJogada() {
    Amostras s;
    mistura(s, nota(67, 0.22, 0.5, 0.004, 0.09), 0);
    mistura(s, nota(61, 0.42, 0.5, 0.004, 0.16), amostrasDe(0.17));
    acaba(s, -20);
    return s;
}

Amostras fanfarra() {
    // C major, brassy: four rising notes, then the chord held and let ring.
    Amostras s;
    const int subida[] = {60, 64, 67, 72};
    for (int i = 0; i < 4; ++i)
        mistura(s, nota(subida[i], 0.2, 0.85, 0.012, 0.2), amostrasDe(0.13 * i), 0.8f);
    for (const int n : {60, 64, 67, 72, 76})
        mistura(s, nota(n, 1.25, 0.8, 0.02, 0.45, 0.004), amostrasDe(0.55), 0.45f);
    acaba(s, -19);
    return s;
}

Amostras fraseDaDerrota() {
    // Four falling half steps, slow, the last one drooping with a wide vibrato.
    Amostras s;
    const int descida[] = {67, 66, 65};
    for (int i = 0; i < 3; ++i)
        mistura(s, nota(descida[i], 0.36, 0.55, 0.02, 0.25, 0.006), amostrasDe(0.34 * i), 0.8f);
    Amostras ultima = nota(64, 1.1, 0.55, 0.02, 0.5, 0.018);
    mistura(s, ultima, amostrasDe(1.02), 0.85f);
    acaba(s, -20);
    return s;
}

Amostras apaga() {
    // Up and back down: something swept off the table.
    Amostras s(amostrasDe(0.5));
    Ruido r(53);
    Filtro f(Filtro::Tipo::PassaBanda);
    for (std::size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / kTaxa;
        const double u = t / 0.5;
        const float centro = static_cast<float>(500 + 4500 * std::sin(kPi * u) * std::sin(kPi * u));
        const float e = static_cast<float>(std::sin(kPi * u));
        s[i] = f.processa(r.proximo(), centro, 1.4f) * e * e;
    }
    acaba(s, -21);
    return s;
}

} // namespace gera

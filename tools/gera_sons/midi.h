#pragma once
// A Standard MIDI File of type 1 written from plain notes.

#include <cstdint>
#include <string>
#include <vector>

namespace gera {

struct Nota {
    double batida;  // start, in beats from the top
    double duracao; // in beats
    int altura;     // MIDI note number
    int forca;      // velocity 1..127
};

struct Trilha {
    std::string nome;
    int canal = 0;    // 0..15; 9 is the percussion
    int programa = 0; // General MIDI instrument
    int volume = 100;
    int reverb = 40;
    std::vector<Nota> notas;
};

bool gravaMidi(const std::string& caminho, double batidasPorMinuto,
               const std::vector<Trilha>& trilhas);

} // namespace gera

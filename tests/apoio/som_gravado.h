#pragma once
// A sound layer that keeps what it was asked, for tests: the waves played and the music's
// commands, in order.

#include <string>
#include <vector>

#include "midia/audio/som.h"

namespace corvina {

struct OndasGravadas : SaidaDeOndas {
    std::vector<std::string> tocadas; // "<file> espera" or "<file>"
    void toca(const std::string& caminho, bool aguarda) override {
        tocadas.push_back(caminho + (aguarda ? " espera" : ""));
    }
};

struct MidiGravado : DispositivoMidi {
    std::vector<std::string> comandos;
    void envia(const std::string& comando) override { comandos.push_back(comando); }
};

} // namespace corvina

#include "musica.h"

#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace gera {

namespace {
constexpr int kBatidasPorCompasso = 4;

// "G4", "F#5", "Eb4" to a MIDI number.
int altura(const std::string& nome) {
    static const std::map<char, int> kGraus{{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                            {'G', 7}, {'A', 9}, {'B', 11}};
    int n = kGraus.at(nome[0]);
    std::size_t i = 1;
    for (; i < nome.size() && (nome[i] == '#' || nome[i] == 'b'); ++i) n += nome[i] == '#' ? 1 : -1;
    return n + 12 * (std::stoi(nome.substr(i)) + 1);
}

// One bar of melody: "D5:1.5 B4:.5 A4:1 r:1" (note or rest, a colon, beats).
void compasso(Trilha& t, int numero, const std::string& frase, int forca) {
    std::istringstream in(frase);
    std::string passo;
    double batida = numero * kBatidasPorCompasso;
    while (in >> passo) {
        const auto dois = passo.find(':');
        const double dur = std::stod(passo.substr(dois + 1));
        if (passo[0] != 'r')
            t.notas.push_back({batida, dur * 0.95, altura(passo.substr(0, dois)), forca});
        batida += dur;
    }
    if (batida != (numero + 1) * kBatidasPorCompasso)
        throw std::logic_error("a bar of the tune does not add up: " + frase);
}

struct Acorde {
    int raiz;             // the bass note
    std::vector<int> voz; // the guitar's voicing
};

const std::map<std::string, Acorde>& acordes() {
    static const std::map<std::string, Acorde> kAcordes{
        {"G7M", {43, {55, 59, 62, 66}}}, {"Em7", {40, {52, 55, 59, 62}}},
        {"Am7", {45, {57, 60, 64, 67}}}, {"D7", {38, {54, 57, 60, 62}}},
        {"E7", {40, {52, 56, 59, 62}}},  {"C7M", {36, {55, 59, 60, 64}}},
        {"Cm6", {36, {57, 60, 63, 67}}}, {"Bm7", {35, {57, 59, 62, 66}}},
        {"G6", {43, {55, 59, 62, 64}}},
    };
    return kAcordes;
}

// The guitar's bossa stroke and the bass for one bar of one or two chords.
void harmonia(Trilha& violao, Trilha& baixo, int numero, const std::string& cifra) {
    std::istringstream in(cifra);
    std::vector<std::string> nomes;
    for (std::string c; in >> c;) nomes.push_back(c);
    const double inicio = numero * kBatidasPorCompasso;
    const double meio = kBatidasPorCompasso / static_cast<double>(nomes.size());
    for (std::size_t k = 0; k < nomes.size(); ++k) {
        const Acorde& a = acordes().at(nomes[k]);
        const double de = inicio + k * meio;
        const double golpes[] = {0, 1.5, 2.5, 3};
        for (const double g : golpes) {
            if (g < k * meio || g >= (k + 1) * meio) continue;
            const double d = g == 0 || g == 3 ? 0.9 : 0.45;
            for (std::size_t v = 0; v < a.voz.size(); ++v)
                violao.notas.push_back({inicio + g + 0.012 * v, d, a.voz[v], g == 0 ? 62 : 50});
        }
        baixo.notas.push_back({de, meio / 2 * 0.9, a.raiz, 80});
        baixo.notas.push_back({de + meio / 2, meio / 2 * 0.9, a.raiz + 7, 70});
    }
}
} // namespace

std::vector<Trilha> compoeMusica() {
    Trilha melodia{"Vibrafone", 0, 11, 100, 50, {}};
    Trilha violao{"Violão", 1, 24, 84, 40, {}};
    Trilha baixo{"Baixo", 2, 32, 96, 20, {}};
    Trilha vassourinha{"Vassourinha", 9, 0, 70, 30, {}};

    const char* const harmonias[] = {
        "Am7", "D7",                                                // intro
        "G7M", "Em7", "Am7",    "D7", "G7M", "E7", "Am7 D7", "G7M", // A
        "C7M", "Cm6", "Bm7",    "E7", "Am7", "D7", "G7M",    "D7",  // B
        "G7M", "Em7", "Am7 D7", "G6",                               // A, shortened
        "G6",  "G6",                                                // the close
    };
    const char* const frases[] = {
        "r:4",
        "r:2 D5:1 C5:1",
        "D5:1.5 B4:.5 A4:1 B4:1",
        "G4:1.5 E4:.5 F#4:1 G4:1",
        "A4:1.5 C5:.5 E5:1 D5:1",
        "C5:1 A4:1 F#4:2",
        "D5:1.5 B4:.5 A4:1 B4:1",
        "G#4:1.5 B4:.5 D5:1 E5:1",
        "C5:1 E5:1 D5:1 C5:1",
        "B4:3 r:1",
        "E5:1.5 D5:.5 B4:1 G4:1",
        "Eb5:1.5 D5:.5 C5:1 A4:1",
        "D5:1.5 B4:.5 F#4:1 A4:1",
        "G#4:2 B4:1 D5:1",
        "C5:1.5 B4:.5 A4:1 E5:1",
        "D5:1 C5:1 A4:1 F#4:1",
        "G4:1 B4:1 D5:1 F#5:1",
        "E5:1 D5:1 C5:1 A4:1",
        "D5:1.5 B4:.5 A4:1 B4:1",
        "G4:1.5 E4:.5 F#4:1 G4:1",
        "A4:1 C5:1 B4:1 A4:1",
        "G4:2 r:2",
        "B4:1 D5:1 E5:1 D5:1",
        "G5:3.5 r:.5",
    };
    constexpr int kCompassos = static_cast<int>(std::size(harmonias));
    static_assert(std::size(frases) == std::size(harmonias));

    for (int c = 0; c < kCompassos; ++c) {
        compasso(melodia, c, frases[c], c >= 10 && c < 18 ? 84 : 76);
        harmonia(violao, baixo, c, harmonias[c]);
        if (c == kCompassos - 1) break; // the last chord rings alone
        for (int colcheia = 0; colcheia < 8; ++colcheia) {
            const double b = c * kBatidasPorCompasso + colcheia * 0.5;
            vassourinha.notas.push_back({b, 0.25, 42, colcheia % 2 == 0 ? 38 : 24}); // hi-hat
            if (colcheia == 3 || colcheia == 6)
                vassourinha.notas.push_back({b, 0.25, 37, 34}); // side stick
        }
    }
    // The last chord held to the end.
    for (auto& n : violao.notas)
        if (n.batida >= (kCompassos - 1) * kBatidasPorCompasso) n.duracao = 3.5;
    return {melodia, violao, baixo, vassourinha};
}

} // namespace gera

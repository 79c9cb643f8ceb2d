// Writes the sounds and the music of Corvina into a folder:
//   ./build/tools/gera_sons/corvina-gera-sons assets/sons
// Every sound is synthesised here from noise and tones; nothing is taken from elsewhere.

#include <cstdio>
#include <functional>
#include <string>

#include "musica.h"
#include "sons.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const std::string pasta = argv[1];
    struct Som {
        const char* arquivo;
        std::function<gera::Amostras()> faz;
    };
    // Lower-case names: the game finds them whatever case its callers spell.
    const Som sons[] = {
        {"cart1.wav", gera::deslizaCarta},    {"cart3.wav", gera::estalaCarta},
        {"click2.wav", gera::cliqueBotao},    {"denied2.wav", gera::negado},
        {"erro.wav", gera::erroDeJogada},     {"valeu.wav", gera::fanfarra},
        {"finalc.wav", gera::fraseDaDerrota}, {"delete.wav", gera::apaga},
    };
    int falhas = 0;
    for (const Som& s : sons) {
        const gera::Amostras a = s.faz();
        const bool ok = gera::gravaWav(pasta + "/" + s.arquivo, a);
        std::printf("%-12s %5.2f s  rms %6.1f dBFS  peak %5.1f dBFS%s\n", s.arquivo,
                    double(a.size()) / gera::kTaxa, gera::rmsDb(a), gera::picoDb(a),
                    ok ? "" : "  (not written)");
        falhas += !ok;
    }
    const bool ok =
        gera::gravaMidi(pasta + "/passport.mid", gera::kAndamento, gera::compoeMusica());
    std::printf("passport.mid%s\n", ok ? "" : "  (not written)");
    return falhas + !ok;
}

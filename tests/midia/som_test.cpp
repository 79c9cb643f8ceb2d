// The sound layer: names found on a file system that tells capitals apart, the music's
// commands in their order, and silence, never a hang, where a file or a device is missing.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoio/som_gravado.h"
#include "midia/audio/musica_fluidsynth.h"
#include "midia/audio/nome_do_som.h"
#include "midia/audio/onda_pcm.h"
#include "midia/imagens.h"

namespace corvina {
namespace {

namespace fs = std::filesystem;

struct PastaDeSons {
    fs::path pasta = fs::temp_directory_path() / ("corvina-sons-" + std::to_string(::getpid()));
    PastaDeSons() {
        fs::create_directories(pasta / "erro.wav"); // a folder is never a sound
        for (const char* nome : {"cart1.wav", "click2.wav", "delete.wav", "Valeu.WAV"})
            std::ofstream(pasta / nome) << "x";
    }
    ~PastaDeSons() { fs::remove_all(pasta); }
};

TEST(NomeDoSom, TheGamesSpellingsFindTheFilesOnDisk) {
    PastaDeSons p;
    const struct {
        const char* literal;
        const char* arquivo; // nullptr: not found
    } casos[] = {
        {"\\cart1.wav", "cart1.wav"},
        {"\\Cart1.wav", "cart1.wav"},
        {"\\CLICK2.wav", "click2.wav"},
        {"\\delete.wav ", "delete.wav"},
        {"\\valeu.wav", "Valeu.WAV"},
        {"\\erro.wav", nullptr},
        {"\\finalc.wav", nullptr},
        {"\\..\\cart1.wav", nullptr},
        {"\\", nullptr},
        {"\\sub/cart1.wav", nullptr},
    };
    for (const auto& c : casos) {
        const auto achado = arquivoDoSom(p.pasta, c.literal);
        if (!c.arquivo) {
            EXPECT_FALSE(achado) << c.literal;
        } else {
            ASSERT_TRUE(achado) << c.literal;
            EXPECT_EQ(achado->filename(), c.arquivo) << c.literal;
        }
    }
}

TEST(Som, TheMusicIsClosedOpenedAndPlayedInThatOrder) {
    OndasGravadas ondas;
    MidiGravado midi;
    Som som("/jogo/sons", ondas, midi);
    som.iniciaMusica(false);
    EXPECT_TRUE(midi.comandos.empty()) << "music off: nothing is sent";
    som.paraMusica();
    som.fechaMusica();
    som.iniciaMusica(true);
    EXPECT_EQ(midi.comandos,
              (std::vector<std::string>{"stop musica", "Close musica", "close musica",
                                        "open /jogo/sons\\passport.mid type sequencer alias musica",
                                        "play musica"}));
}

struct Musica : testing::Test {
    MidiGravado nada;
    OndasGravadas ondas;
    std::string pasta = pastaDosSons().toStdString();
};

TEST_F(Musica, ThePieceOpensPlaysStopsAndClosesWithoutAnAudioDevice) {
    MusicaFluidSynth musica;
    Som som(pasta, ondas, musica);
    som.iniciaMusica(true);
    EXPECT_TRUE(musica.aberta()) << "the soundfont and the piece load with no card to play on";
    som.paraMusica();
    EXPECT_FALSE(musica.tocando());
    EXPECT_TRUE(musica.aberta()) << "stop leaves the device open";
    som.iniciaMusica(true);
    EXPECT_TRUE(musica.aberta()) << "opened again from the start";
    som.fechaMusica();
    EXPECT_FALSE(musica.aberta());
}

TEST_F(Musica, NoSoundfontOrNoFileIsSilence) {
    {
        MusicaFluidSynth semSoundfont(std::vector<std::string>{"/nao/existe.sf2"});
        Som som(pasta, ondas, semSoundfont);
        som.iniciaMusica(true);
        EXPECT_FALSE(semSoundfont.aberta());
    }
    MusicaFluidSynth musica;
    Som semArquivo("/nao/existe", ondas, musica);
    semArquivo.iniciaMusica(true);
    EXPECT_FALSE(musica.aberta());
    musica.envia("play musica");
    musica.envia("open garbage");
    musica.envia("stop outra");
    EXPECT_FALSE(musica.aberta()) << "commands it can't carry out do nothing";
}

std::string bytesDe(const std::string& caminho) {
    std::ifstream f(caminho, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

TEST(OndaPcm, OnlyPlainPcmWavesAreSounds) {
    const std::string sons = pastaDosSons().toStdString();
    const std::string boa = bytesDe(sons + "/cart1.wav");
    const auto onda = leOndaPcm(boa);
    ASSERT_TRUE(onda);
    EXPECT_EQ(onda->milissegundos(), 170);
    EXPECT_EQ(onda->inicio + onda->tamanho, boa.size());

    const auto cortada = leOndaPcm(boa.substr(0, 1001));
    ASSERT_TRUE(cortada) << "a cut file plays what it has";
    EXPECT_EQ(cortada->tamanho, 1001u - 44u - 1u) << "whole frames only";

    std::string float32 = boa;
    float32[20] = 3; // WAVE_FORMAT_IEEE_FLOAT
    std::string doisCanais24 = boa;
    doisCanais24[34] = 24;
    std::string semDados = boa.substr(0, 36);
    for (const std::string& ruim :
         {bytesDe(sons + "/passport.mid"), std::string(), float32, doisCanais24, semDados,
          std::string("RIFF\xff\xff\xff\xffWAVE")})
        EXPECT_FALSE(leOndaPcm(ruim));
}

} // namespace
} // namespace corvina

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

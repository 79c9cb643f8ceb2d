#include "midia/audio/musica_fluidsynth.h"

#include <alsa/asoundlib.h>
#include <fluidsynth.h>

#include <cctype>
#include <filesystem>

#include "midia/audio/nome_do_som.h"

namespace corvina {

namespace {
inline constexpr const char* kAlias = "musica";
inline constexpr const char* kSufixoDoOpen = " type sequencer alias ";
// FluidSynth's own 0.2 leaves the piece some 18 dB under the game's sounds; at this it sits
// about 8 dB under them, behind them as a background should.
inline constexpr double kGanho = 0.6;

// No sound card is no news: the libraries below must not print about it.
void alsaCalado(const char*, int, const char*, int, const char*, ...) {}

std::string minusculas(std::string t) {
    for (char& c : t) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return t;
}
} // namespace

struct MusicaFluidSynth::Estado {
    fluid_settings_t* ajustes = nullptr;
    fluid_synth_t* synth = nullptr;
    fluid_player_t* player = nullptr;
    fluid_audio_driver_t* saida = nullptr;
    bool preparado = false, semSoundfont = false;

    void fechaSaida() {
        if (saida) delete_fluid_audio_driver(saida);
        saida = nullptr;
    }
    void fecha() {
        fechaSaida(); // the driver first: it is what calls into the player
        if (player) {
            fluid_player_stop(player);
            delete_fluid_player(player);
        }
        player = nullptr;
        if (synth) fluid_synth_system_reset(synth);
    }
    ~Estado() {
        fecha();
        if (synth) delete_fluid_synth(synth);
        if (ajustes) delete_fluid_settings(ajustes);
    }
};

std::vector<std::string> MusicaFluidSynth::soundfontsDoSistema() {
    return {"/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf3/default-GM.sf3",
            "/usr/share/sounds/sf2/TimGM6mb.sf2", "/usr/share/sounds/sf2/FluidR3_GM.sf2"};
}

MusicaFluidSynth::MusicaFluidSynth(std::vector<std::string> soundfonts)
    : soundfonts_(std::move(soundfonts)), trabalhador_([this] { trabalha(); }) {}

MusicaFluidSynth::~MusicaFluidSynth() {
    {
        std::lock_guard trava(mutex_);
        fim_ = true;
    }
    cond_.notify_all();
    trabalhador_.join();
}

void MusicaFluidSynth::envia(const std::string& comando) {
    {
        std::lock_guard trava(mutex_);
        fila_.push_back(comando);
    }
    cond_.notify_all();
}

void MusicaFluidSynth::aguardaComandos() {
    std::unique_lock trava(mutex_);
    cond_.wait(trava, [this] { return fila_.empty() && !ocupado_; });
}

bool MusicaFluidSynth::aberta() {
    aguardaComandos();
    std::lock_guard trava(mutex_);
    return estado_ && estado_->player;
}

bool MusicaFluidSynth::tocando() {
    aguardaComandos();
    std::lock_guard trava(mutex_);
    return estado_ && estado_->player &&
           fluid_player_get_status(estado_->player) == FLUID_PLAYER_PLAYING;
}

void MusicaFluidSynth::trabalha() {
    for (int nivel = 0; nivel < LAST_LOG_LEVEL; ++nivel)
        fluid_set_log_function(nivel, nullptr, nullptr);
    snd_lib_error_set_handler(alsaCalado);
    Estado estado;
    {
        std::lock_guard trava(mutex_);
        estado_ = &estado;
    }
    for (;;) {
        std::string comando;
        {
            std::unique_lock trava(mutex_);
            cond_.wait(trava, [this] { return fim_ || !fila_.empty(); });
            if (fila_.empty()) break; // the end, once all that was asked is done
            comando = std::move(fila_.front());
            fila_.pop_front();
            ocupado_ = true;
        }
        executa(comando);
        {
            std::lock_guard trava(mutex_);
            ocupado_ = false;
        }
        cond_.notify_all();
    }
    std::lock_guard trava(mutex_);
    estado_ = nullptr;
}

void MusicaFluidSynth::executa(const std::string& comando) {
    Estado& e = *estado_;
    const std::string verbo = minusculas(comando.substr(0, comando.find(' ')));
    if (verbo == "open") {
        const auto sufixo = comando.rfind(kSufixoDoOpen);
        if (e.player || sufixo == std::string::npos || sufixo < 5 ||
            comando.substr(sufixo + std::char_traits<char>::length(kSufixoDoOpen)) != kAlias)
            return; // the alias is in use, or the command can't be read
        if (!e.preparado) {
            e.preparado = true;
            e.ajustes = new_fluid_settings();
            if (e.ajustes) fluid_settings_setnum(e.ajustes, "synth.gain", kGanho);
            e.synth = e.ajustes ? new_fluid_synth(e.ajustes) : nullptr;
            e.semSoundfont = true;
            for (const std::string& sf : soundfonts_)
                if (e.synth && std::filesystem::exists(sf) &&
                    fluid_synth_sfload(e.synth, sf.c_str(), 1) != FLUID_FAILED) {
                    e.semSoundfont = false;
                    break;
                }
        }
        if (e.semSoundfont) return;
        // "<folder>\passport.mid": the folder and the name the game gave the file.
        const std::string caminho = comando.substr(5, sufixo - 5);
        const auto barra = caminho.rfind('\\');
        const auto arquivo = barra == std::string::npos
                                 ? arquivoDoSom(".", caminho)
                                 : arquivoDoSom(caminho.substr(0, barra), caminho.substr(barra));
        if (!arquivo) return;
        e.player = new_fluid_player(e.synth);
        if (e.player && fluid_player_add(e.player, arquivo->c_str()) != FLUID_OK) e.fecha();
        return;
    }
    if (minusculas(comando.substr(verbo.size() + 1 > comando.size() ? comando.size()
                                                                    : verbo.size() + 1)) != kAlias)
        return; // another device: nothing of ours
    if (verbo == "play") {
        if (!e.player) return;
        for (const char* driver : {"pulseaudio", "alsa"}) {
            if (e.saida) break;
            fluid_settings_setstr(e.ajustes, "audio.driver", driver);
            e.saida = new_fluid_audio_driver(e.ajustes, e.synth);
        }
        fluid_player_play(e.player);
    } else if (verbo == "stop") {
        if (!e.player) return;
        fluid_player_stop(e.player);
        fluid_synth_all_notes_off(e.synth, -1);
    } else if (verbo == "close") {
        e.fecha();
    }
}

} // namespace corvina

#pragma once
// The music device over FluidSynth and the General MIDI soundfont of the system. Commands are
// carried out in order on a thread of their own, so that loading the soundfont or finding no
// sound card never holds up a window.

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "midia/audio/som.h"

namespace corvina {

class MusicaFluidSynth : public DispositivoMidi {
  public:
    // Soundfonts tried in order; the first that loads is used. With none, all is silence.
    explicit MusicaFluidSynth(std::vector<std::string> soundfonts = soundfontsDoSistema());
    ~MusicaFluidSynth() override;
    MusicaFluidSynth(const MusicaFluidSynth&) = delete;
    MusicaFluidSynth& operator=(const MusicaFluidSynth&) = delete;

    void envia(const std::string& comando) override;
    // Waits until every command sent so far has been carried out (for tests and the close).
    void aguardaComandos();
    // Whether a piece is open, and whether it is sounding (it may have ended by itself).
    bool aberta();
    bool tocando();

    static std::vector<std::string> soundfontsDoSistema();

  private:
    struct Estado;
    void trabalha();
    void executa(const std::string& comando);

    std::vector<std::string> soundfonts_;
    std::mutex mutex_;
    std::condition_variable cond_;
    std::deque<std::string> fila_;
    bool ocupado_ = false, fim_ = false;
    Estado* estado_ = nullptr; // touched by the worker only
    std::thread trabalhador_;
};

} // namespace corvina

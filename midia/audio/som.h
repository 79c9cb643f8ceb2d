#pragma once
// The game's two channels of sound: short waves for the events of the table, and one MIDI
// piece behind the choose-player window and the hall of fame. Whatever fails stays silent.

#include <string>

namespace corvina {

// Plays a wave file: without wait it returns at once and a later sound cuts this one off;
// with wait it returns when the sound has ended, the window still painting meanwhile.
class SaidaDeOndas {
  public:
    virtual ~SaidaDeOndas() = default;
    virtual void toca(const std::string& caminho, bool aguarda) = 0;
};

// A music device driven by text commands: "open <file> type sequencer alias musica",
// "play musica", "stop musica", "close musica". A command it can't carry out does nothing.
class DispositivoMidi {
  public:
    virtual ~DispositivoMidi() = default;
    virtual void envia(const std::string& comando) = 0;
};

inline constexpr const char* kArquivoDaMusica = "\\passport.mid";

class Som {
  public:
    Som(std::string pasta, SaidaDeOndas& ondas, DispositivoMidi& midi)
        : pasta_(std::move(pasta)), ondas_(ondas), midi_(midi) {}

    // `literal` is the name as the game spells it, "\CLICK2.wav". The callers test the sound
    // setting first; a file that isn't there is silence.
    void tocaSom(const std::string& literal, bool aguarda);
    // The piece from its start, played once, if the music is on.
    void iniciaMusica(bool tocarMusica);
    void paraMusica();  // the device stays open
    void fechaMusica(); // stopped and closed

  private:
    std::string pasta_;
    SaidaDeOndas& ondas_;
    DispositivoMidi& midi_;
};

} // namespace corvina

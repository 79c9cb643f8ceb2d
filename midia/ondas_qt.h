#pragma once
// Wave files through Qt Multimedia's audio output. One sound at a time: a new one cuts off the
// one playing. No device, or a file that is not a plain PCM wave, is silence.

#include <QBuffer>
#include <QByteArray>
#include <map>
#include <memory>

#include "midia/audio/som.h"

class QAudioSink;

namespace corvina {

class OndasQt : public SaidaDeOndas {
  public:
    OndasQt();
    ~OndasQt() override;
    void toca(const std::string& caminho, bool aguarda) override;

  private:
    struct Onda;
    const Onda* carrega(const std::string& caminho);
    void para();

    std::map<std::string, std::unique_ptr<Onda>> ondas_; // read once, kept for the run
    std::unique_ptr<QAudioSink> saida_;
    QBuffer tocando_;
};

} // namespace corvina

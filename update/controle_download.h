#pragma once
// The bookkeeping of one download: its status, its percentage, and the watchdog that gives up
// after a silence. Plain state, fed with the network's signs of life and the clock.

#include <cstdint>

namespace corvina {

enum class Situacao : std::int16_t { Correndo = 0, Completo = 1, Cancelado = 2, Falhou = 3 };

// What the network layer under the watchdog allows a read, so that a server that keeps sending
// a byte now and then can't hold the game: a time for the whole read, and a least number of
// bytes in each window of time. 0 switches a limit off.
struct LimitesDoTransporte {
    double prazoTotal = 0;           // seconds from the start
    double janela = 0;               // seconds
    std::int64_t bytesPorJanela = 0; // at least this many arrive in each window
};

class ControleDeDownload {
  public:
    // A read starts: the watchdog allows `limite` seconds of silence from `agora`.
    void inicia(double agora, double limite, LimitesDoTransporte transporte = {});
    // Bytes arrived; `total` is 0 when the server didn't tell it.
    void progresso(std::int64_t lidos, std::int64_t total, double agora);
    // The read ended; complete only above 99 %.
    void completo();
    // The read ended with an error of the network or of the disk: failed, whatever had come.
    void falhou();
    void cancela() { situacao_ = Situacao::Cancelado; }
    // True when the silence has lasted past the limit; the read is then given up for good:
    // whatever the instance hears later is ignored, so its later reads end by the watchdog.
    bool expirou(double agora);
    // True when the read has outlasted its time or crawls below its rate: the network layer
    // then breaks it off, and it ends as a failed read does. The silence is the watchdog's.
    bool transporteEsgotado(double agora);
    // A text read starts from "running"; a file download keeps what the last one left.
    void zeraSituacao();

    Situacao situacao() const { return situacao_; }
    std::int32_t percentual() const { return percentual_; }
    bool abortado() const { return abortado_; }

  private:
    Situacao situacao_ = Situacao::Correndo;
    std::int32_t percentual_ = 0;
    bool abortado_ = false;
    double ultimoSinal_ = 0, limite_ = 0;
    LimitesDoTransporte transporte_;
    double inicio_ = 0, inicioDaJanela_ = 0;
    std::int64_t lidos_ = 0, lidosNoInicioDaJanela_ = 0;
};

} // namespace corvina

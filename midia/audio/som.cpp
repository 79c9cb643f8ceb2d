#include "midia/audio/som.h"

#include "core/caminhos.h"
#include "midia/audio/nome_do_som.h"

namespace corvina {

void Som::tocaSom(const std::string& literal, bool aguarda) {
    if (const auto arquivo = arquivoDoSom(pasta_, literal)) ondas_.toca(arquivo->string(), aguarda);
}

void Som::iniciaMusica(bool tocarMusica) {
    if (!tocarMusica) return;
    // Each command goes whatever became of the one before: a device left open is closed first.
    midi_.envia("close musica");
    midi_.envia("open " + CaminhoCurto(pasta_) + kArquivoDaMusica + " type sequencer alias musica");
    midi_.envia("play musica");
}

void Som::paraMusica() {
    midi_.envia("stop musica");
}

void Som::fechaMusica() {
    midi_.envia("Close musica");
}

} // namespace corvina

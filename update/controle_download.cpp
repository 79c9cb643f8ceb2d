#include "update/controle_download.h"

#include <cmath>

namespace corvina {

void ControleDeDownload::inicia(double agora, double limite, LimitesDoTransporte transporte) {
    limite_ = limite;
    ultimoSinal_ = agora;
    transporte_ = transporte;
    inicio_ = inicioDaJanela_ = agora;
    lidos_ = lidosNoInicioDaJanela_ = 0;
}

bool ControleDeDownload::transporteEsgotado(double agora) {
    if (transporte_.prazoTotal > 0 && agora - inicio_ > transporte_.prazoTotal) return true;
    if (transporte_.janela <= 0 || agora - inicioDaJanela_ < transporte_.janela) return false;
    if (lidos_ - lidosNoInicioDaJanela_ < transporte_.bytesPorJanela) return true;
    inicioDaJanela_ = agora;
    lidosNoInicioDaJanela_ = lidos_;
    return false;
}

void ControleDeDownload::progresso(std::int64_t lidos, std::int64_t total, double agora) {
    if (abortado_) return; // a read given up is not heard again
    lidos_ = lidos;
    // 100 / (total / read), to the nearest whole number, halves to even; with nothing read or
    // no total the division fails and the percentage stays.
    if (lidos > 0 && total > 0)
        percentual_ = static_cast<std::int32_t>(
            std::nearbyint(100.0 / (static_cast<double>(total) / static_cast<double>(lidos))));
    ultimoSinal_ = agora; // the watchdog measures silence, not the length of the read
}

void ControleDeDownload::completo() {
    if (abortado_) return;
    situacao_ = percentual_ > 99 ? Situacao::Completo : Situacao::Falhou;
}

void ControleDeDownload::falhou() {
    if (!abortado_) situacao_ = Situacao::Falhou;
}

bool ControleDeDownload::expirou(double agora) {
    const bool expirou = agora > ultimoSinal_ + limite_;
    if (expirou) abortado_ = true;
    return expirou;
}

void ControleDeDownload::zeraSituacao() {
    situacao_ = Situacao::Correndo;
}

} // namespace corvina

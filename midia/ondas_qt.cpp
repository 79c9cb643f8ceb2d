#include "midia/ondas_qt.h"

#include <QAudioFormat>
#include <QAudioSink>
#include <QEventLoop>
#include <QFile>
#include <QMediaDevices>
#include <QTimer>
#include <QtGlobal>

#include "midia/audio/onda_pcm.h"

namespace corvina {

namespace {
inline constexpr int kFolgaMs = 250;                   // beyond the sound's length, for the device
inline constexpr qint64 kMaiorOnda = 16 * 1024 * 1024; // no sound of the game comes near it
} // namespace

struct OndasQt::Onda {
    QAudioFormat formato;
    QByteArray amostras;
    int milissegundos = 0;
};

namespace {
QtMessageHandler avisosAnteriores = nullptr;

// A desktop without a sound server is silence, not a warning on every start.
void semAvisosDeAudio(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
    if (texto.startsWith("PulseAudioService:")) return;
    if (avisosAnteriores) avisosAnteriores(tipo, contexto, texto);
}
} // namespace

OndasQt::OndasQt() {
    if (!avisosAnteriores) avisosAnteriores = qInstallMessageHandler(semAvisosDeAudio);
}

OndasQt::~OndasQt() {
    para();
}

const OndasQt::Onda* OndasQt::carrega(const std::string& caminho) {
    auto& lida = ondas_[caminho];
    if (lida) return lida->amostras.isEmpty() ? nullptr : lida.get();
    lida = std::make_unique<Onda>();
    QFile f(QString::fromStdString(caminho));
    if (!f.open(QIODevice::ReadOnly) || f.size() > kMaiorOnda) return nullptr;
    const QByteArray bytes = f.read(kMaiorOnda);
    const auto pcm = leOndaPcm(std::string_view(bytes.constData(), bytes.size()));
    if (!pcm) return nullptr;
    lida->formato.setChannelCount(pcm->canais);
    lida->formato.setSampleRate(pcm->taxa);
    lida->formato.setSampleFormat(pcm->bitsPorAmostra == 8 ? QAudioFormat::UInt8
                                                           : QAudioFormat::Int16);
    lida->amostras =
        bytes.mid(static_cast<qsizetype>(pcm->inicio), static_cast<qsizetype>(pcm->tamanho));
    lida->milissegundos = pcm->milissegundos();
    return lida.get();
}

void OndasQt::para() {
    if (saida_) saida_->stop();
    saida_.reset();
    tocando_.close();
}

void OndasQt::toca(const std::string& caminho, bool aguarda) {
    para(); // a later sound cuts the earlier one off
    const Onda* onda = carrega(caminho);
    if (!onda) return;
    const QAudioDevice dispositivo = QMediaDevices::defaultAudioOutput();
    if (dispositivo.isNull() || !dispositivo.isFormatSupported(onda->formato)) return;
    saida_ = std::make_unique<QAudioSink>(dispositivo, onda->formato);
    tocando_.setData(onda->amostras);
    tocando_.open(QIODevice::ReadOnly);
    saida_->start(&tocando_);
    if (!aguarda || saida_->error() != QAudio::NoError) return;
    // The window keeps painting while the sound lasts; the player's input waits.
    QEventLoop laco;
    QTimer::singleShot(onda->milissegundos + kFolgaMs, &laco, &QEventLoop::quit);
    QObject::connect(saida_.get(), &QAudioSink::stateChanged, &laco, [&](QAudio::State s) {
        if (s == QAudio::IdleState || s == QAudio::StoppedState) laco.quit();
    });
    laco.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace corvina

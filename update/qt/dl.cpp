#include "update/qt/dl.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTemporaryFile>
#include <QTimer>
#include <limits>

#include "arquivos/arquivo_regular.h"
#include "midia/pastas.h"
#include "update/resposta.h"

namespace corvina {

namespace {
inline constexpr int kRedirecionamentos = 5;
// How often the caller's bar and the watchdog are looked at while the network is quiet.
inline constexpr int kVoltaMs = 100;
} // namespace

DL::DL() {
    rede_.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
}

double DL::agora() const {
    return QDateTime::currentMSecsSinceEpoch() / 1000.0;
}

void DL::inicia(const QString& url, const QString& sID, const QString& destino, qint64 limite) {
    arquivos_.try_emplace(sID, destino); // a key already there keeps its old entry
    const auto termina = [this] {
        if (esperando_) esperando_->quit();
    };
    const QUrl endereco(url);
    // Code is fetched over https only: anything else fails as an unreachable server does.
    if (endereco.scheme() != "https" || endereco.host().isEmpty()) {
        arquivos_.erase(sID);
        controle_.falhou();
        return;
    }
    QNetworkRequest pedido(endereco);
    pedido.setMaximumRedirectsAllowed(kRedirecionamentos);
    pedido.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                        QNetworkRequest::AlwaysNetwork); // read anew, past any cache
    QNetworkReply* r = rede_.get(pedido);
    r->setReadBufferSize(kBufferDeLeitura);
    leituras_[sID] = r;

    // The body goes to a temporary file beside the destination, renamed into place at the end.
    auto* arquivo = new QTemporaryFile(QFileInfo(destino).absolutePath() + "/.corvina-XXXXXX", r);
    const bool aberto = arquivo->open();
    connect(r, &QNetworkReply::readyRead, this, [=] {
        const QByteArray pedaco = r->readAll();
        // A folder that can't be written, a disk that fills up, an answer that never ends.
        if (!aberto || arquivo->write(pedaco) != pedaco.size() || arquivo->size() > limite)
            r->abort();
    });
    // A length told beyond the limit is refused before its first byte.
    connect(r, &QNetworkReply::metaDataChanged, this, [=] {
        const QVariant dito = r->header(QNetworkRequest::ContentLengthHeader);
        if (dito.isValid() && dito.toLongLong() > limite) r->abort();
    });
    connect(r, &QNetworkReply::downloadProgress, this, [=, this](qint64 lidos, qint64 total) {
        // A total the server didn't tell stays unknown, also when the network layer works it
        // out at the end: the percentage then never moves.
        const bool contado = r->header(QNetworkRequest::ContentLengthHeader).isValid();
        controle_.progresso(lidos, contado && total > 0 ? total : 0, agora());
    });
    connect(r, &QNetworkReply::finished, this, [=, this] {
        leituras_.erase(sID);
        r->deleteLater();
        const auto it = arquivos_.find(sID);
        const QString alvo = it == arquivos_.end() ? QString() : it->second;
        arquivos_.erase(sID);
        if (controle_.abortado() || controle_.situacao() == Situacao::Cancelado) return termina();
        if (r->error() != QNetworkReply::NoError || !aberto || !arquivo->flush()) {
            controle_.falhou();
            return termina();
        }
        // An existing destination is not replaced: the rename fails and the old file stays.
        if (!alvo.isEmpty() && !QFileInfo::exists(alvo) && arquivo->rename(alvo))
            arquivo->setAutoRemove(false);
        controle_.completo();
        termina();
    });
}

bool DL::aguarda(const std::function<void(int)>& aCadaVolta) {
    QEventLoop laco;
    QTimer volta;
    connect(&volta, &QTimer::timeout, &laco, [&] {
        if (aCadaVolta) aCadaVolta(controle_.percentual());
        if (controle_.expirou(agora())) return laco.quit();
        if (controle_.transporteEsgotado(agora())) {
            // Broken off as the network would break it: the read ends failed, its file gone.
            const auto leituras = leituras_;
            for (const auto& [id, r] : leituras) r->abort();
        }
    });
    volta.start(kVoltaMs);
    esperando_ = &laco;
    if (controle_.situacao() == Situacao::Correndo) laco.exec();
    esperando_ = nullptr;
    return controle_.situacao() != Situacao::Correndo;
}

QString DL::GetConteudo(const QString& url, const QString& sID, double timeout) {
    const QString pasta = pastaTemporaria();
    const QString destino = QDir(pasta).filePath("temp01.dat");
    QFile::remove(destino); // what an earlier run left is not this answer
    controle_.inicia(agora(), timeout, limitesDoTexto);
    controle_.zeraSituacao();
    if (pasta.isEmpty()) { // nowhere private to put the answer: no answer
        controle_.falhou();
        return {};
    }
    inicia(url, sID, destino, kMaiorTexto);
    if (!aguarda({})) return {};
    const ArquivoLido lido = leArquivoRegular(destino.toStdString(), kMaiorTexto);
    QFile::remove(destino);
    if (lido.situacao != SituacaoDoArquivo::Lido) return {};
    return QString::fromUtf8(ultimaLinha(lido.conteudo));
}

Situacao DL::Download(const QString& url, const QString& destino,
                      const std::function<void(int)>& objprogress, const QString& sID,
                      double timeout) {
    controle_.inicia(agora(), timeout, limitesDoArquivo);
    inicia(url, sID, destino, maiorArquivo);
    if (!aguarda(objprogress)) return Situacao::Falhou;
    if (objprogress) objprogress(controle_.percentual());
    return controle_.situacao();
}

void DL::CancelDownload(const QString& sID) {
    controle_.cancela();
    const auto it = leituras_.find(sID);
    if (it != leituras_.end()) it->second->abort();
    if (esperando_) esperando_->quit();
}

} // namespace corvina

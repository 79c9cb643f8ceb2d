#pragma once
// DL: fetches one URL at a time in the background while its caller waits, the window's events
// running meanwhile. A watchdog gives up after a silence. Only https is fetched.

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <functional>
#include <map>

#include "update/assinatura.h"
#include "update/controle_download.h"

class QEventLoop;
class QNetworkReply;

namespace corvina {

class DL : public QObject {
  public:
    DL();

    // The text at the URL: its last line followed by CR LF, or "" when nothing came in time.
    // The body passes through "temp01.dat" in the temporary folder, deleted after.
    QString GetConteudo(const QString& url, const QString& sID = "Id", double timeout = 8);

    // The file at the URL into `destino`; `objprogress` is told the percentage as it goes.
    // Returns the final status: 1 complete, 2 cancelled, 3 failed or given up. A destination
    // that already exists is left as it was.
    Situacao Download(const QString& url, const QString& destino,
                      const std::function<void(int)>& objprogress, const QString& sID = "Id",
                      double timeout = 8);

    void CancelDownload(const QString& sID = "Id");

    Situacao situacao() const { return controle_.situacao(); }
    int percentual() const { return controle_.percentual(); }
    bool abortado() const { return controle_.abortado(); }

    // A text answer longer than this is no answer of an update server.
    static constexpr qint64 kMaiorTexto = 64 * 1024;
    // A file longer than this is no installer: the signature check would refuse it anyway.
    qint64 maiorArquivo = static_cast<qint64>(kMaiorInstalador);
    // What a read may take, whatever the watchdog: a text answer is short or nothing; an
    // installer of a few megabytes comes in minutes, at a few kilobytes a second at worst.
    LimitesDoTransporte limitesDoTexto{30, 0, 0};
    LimitesDoTransporte limitesDoArquivo{10 * 60, 30, 30 * 4 * 1024};
    // Bytes the network may hold for the game before it reads them: what is in flight stays
    // this small however fast the server and however busy the window.
    static constexpr qint64 kBufferDeLeitura = 256 * 1024;

  private:
    // Starts the read of `url` into `arquivo`; the file is renamed to `destino` at the end.
    void inicia(const QString& url, const QString& sID, const QString& destino, qint64 limite);
    // Waits, events running, until the read ends or the watchdog fires; true when it ended.
    bool aguarda(const std::function<void(int)>& aCadaVolta);
    double agora() const;

    QNetworkAccessManager rede_;
    ControleDeDownload controle_;
    std::map<QString, QString> arquivos_; // sID: where the file ends up
    std::map<QString, QNetworkReply*> leituras_;
    QEventLoop* esperando_ = nullptr;
};

} // namespace corvina

#pragma once
// An HTTPS server on the loopback address for the tests of the download, with a throwaway
// certificate that only the test process trusts. Each path answers in its own way.

#include <QByteArray>
#include <QSslServer>
#include <QString>
#include <QThread>
#include <map>

namespace corvina::teste {

struct Resposta {
    enum class Tipo { Normal, Redireciona, Silencio, Lixo } tipo = Tipo::Normal;
    int status = 200;
    QByteArray corpo;
    bool comTamanho = true;  // Content-Length told
    int gotejaMs = 0;        // a pause between pieces of the body, when not 0
    int pedaco = 1024;       // bytes a piece
    QString destino;         // where a redirect points
    qint64 semFim = 0;       // bytes of an endless body (sent in pieces until the client stops)
    qint64 tamanhoDito = -1; // a Content-Length that lies, when not -1
    qint64 jorro = 0;        // bytes of a body sent as fast as the connection takes them

    static Resposta texto(QByteArray corpo, int status = 200, bool comTamanho = true) {
        Resposta r;
        r.corpo = std::move(corpo);
        r.status = status;
        r.comTamanho = comTamanho;
        return r;
    }
    static Resposta gotejando(QByteArray corpo, int pedaco, int ms) {
        Resposta r = texto(std::move(corpo));
        r.pedaco = pedaco;
        r.gotejaMs = ms;
        return r;
    }
    static Resposta semFimDe(qint64 bytes) {
        Resposta r;
        r.semFim = bytes;
        return r;
    }
    static Resposta jorroDe(qint64 bytes) {
        Resposta r;
        r.jorro = bytes;
        return r;
    }
    static Resposta so(Tipo tipo, QString destino = {}) {
        Resposta r;
        r.tipo = tipo;
        r.destino = std::move(destino);
        return r;
    }
};

class ServidorHttps {
  public:
    ServidorHttps();
    // The certificate becomes trusted by this process, and by nothing else.
    static void confiaNoCertificado();
    QString url(const QString& caminho) const;
    std::map<QString, Resposta> caminhos;
    int pedidos = 0;

    // Serves from `thread` from now on (before the first request).
    void passaPara(QThread* thread) { servidor_.moveToThread(thread); }

  private:
    void atende(QSslSocket* s, const QByteArray& pedido);
    QSslServer servidor_;
};

// A server on a thread of its own, so that it keeps sending while the test's thread is busy,
// as a real server does while the game's window is.
class ServidorEmOutraThread {
  public:
    explicit ServidorEmOutraThread(std::map<QString, Resposta> caminhos);
    ~ServidorEmOutraThread();
    QString url(const QString& caminho) const { return servidor_.url(caminho); }

  private:
    ServidorHttps servidor_;
    QThread thread_;
};

} // namespace corvina::teste

#include "servidor_https.h"

#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTimer>

namespace corvina::teste {

namespace {
QByteArray le(const char* nome) {
    QFile f(QString(CORVINA_DADOS_DE_TESTE) + "/" + nome);
    f.open(QIODevice::ReadOnly);
    return f.readAll();
}

// Writes `corpo` in pieces, one every `ms`, then closes.
void goteja(QSslSocket* s, QByteArray corpo, int pedaco, int ms) {
    if (s->state() != QAbstractSocket::ConnectedState) return;
    if (corpo.isEmpty()) return s->disconnectFromHost();
    s->write(corpo.left(pedaco));
    QTimer::singleShot(ms, s, [=] { goteja(s, corpo.mid(pedaco), pedaco, ms); });
}
// Writes `falta` bytes as fast as the connection takes them, keeping little in our own buffer.
void jorra(QSslSocket* s, qint64 falta) {
    constexpr qint64 kPedaco = 64 * 1024, kNoBuffer = 256 * 1024;
    const QByteArray pedaco(kPedaco, 'j');
    auto resta = std::make_shared<qint64>(falta);
    const auto enche = [=] {
        while (*resta > 0 && s->encryptedBytesToWrite() + s->bytesToWrite() < kNoBuffer) {
            const qint64 n = std::min(*resta, kPedaco);
            s->write(pedaco.constData(), n);
            *resta -= n;
        }
        if (*resta == 0 && s->state() == QAbstractSocket::ConnectedState)
            s->disconnectFromHost(); // once what is buffered has gone
    };
    QObject::connect(s, &QSslSocket::encryptedBytesWritten, s, enche);
    enche();
}
} // namespace

ServidorEmOutraThread::ServidorEmOutraThread(std::map<QString, Resposta> caminhos) {
    servidor_.caminhos = std::move(caminhos);
    servidor_.passaPara(&thread_);
    thread_.start();
}

ServidorEmOutraThread::~ServidorEmOutraThread() {
    thread_.quit();
    thread_.wait();
}

ServidorHttps::ServidorHttps() {
    QSslConfiguration conf = QSslConfiguration::defaultConfiguration();
    conf.setLocalCertificate(QSslCertificate(le("servidor.crt")));
    conf.setPrivateKey(QSslKey(le("servidor.key"), QSsl::Ec));
    servidor_.setSslConfiguration(conf);
    QObject::connect(&servidor_, &QTcpServer::pendingConnectionAvailable, [this] {
        while (auto* s = static_cast<QSslSocket*>(servidor_.nextPendingConnection())) {
            auto pedido = std::make_shared<QByteArray>();
            QObject::connect(s, &QSslSocket::readyRead, s, [=, this] {
                *pedido += s->readAll();
                if (pedido->contains("\r\n\r\n")) atende(s, *pedido);
            });
        }
    });
    servidor_.listen(QHostAddress::LocalHost, 0);
}

void ServidorHttps::confiaNoCertificado() {
    QSslConfiguration conf = QSslConfiguration::defaultConfiguration();
    conf.addCaCertificate(QSslCertificate(le("servidor.crt")));
    QSslConfiguration::setDefaultConfiguration(conf);
}

QString ServidorHttps::url(const QString& caminho) const {
    return QString("https://127.0.0.1:%1%2").arg(servidor_.serverPort()).arg(caminho);
}

void ServidorHttps::atende(QSslSocket* s, const QByteArray& pedido) {
    ++pedidos;
    const QByteArray caminho = pedido.split(' ').value(1);
    const auto it = caminhos.find(QString::fromUtf8(caminho));
    const Resposta r = it == caminhos.end() ? Resposta::texto("nada", 404) : it->second;
    switch (r.tipo) {
    case Resposta::Tipo::Silencio:
        return; // the connection stays open and nothing comes
    case Resposta::Tipo::Lixo:
        s->write("\x01\x02 isto nao e HTTP\r\n\r\n");
        return s->disconnectFromHost();
    case Resposta::Tipo::Redireciona:
        s->write("HTTP/1.1 302 Found\r\nLocation: " + r.destino.toUtf8() +
                 "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        return s->disconnectFromHost();
    case Resposta::Tipo::Normal:
        break;
    }
    QByteArray cabecalho =
        "HTTP/1.1 " + QByteArray::number(r.status) + " X\r\nConnection: close\r\n";
    if (r.semFim == 0 && r.comTamanho)
        cabecalho += "Content-Length: " +
                     QByteArray::number(r.tamanhoDito >= 0 ? r.tamanhoDito
                                        : r.jorro > 0      ? r.jorro
                                                           : r.corpo.size()) +
                     "\r\n";
    s->write(cabecalho + "\r\n");
    if (r.semFim > 0) return goteja(s, QByteArray(r.semFim, 'x'), 16 * 1024, 1);
    if (r.jorro > 0) return jorra(s, r.jorro);
    if (r.gotejaMs > 0) return goteja(s, r.corpo, r.pedaco, r.gotejaMs);
    s->write(r.corpo);
    s->disconnectFromHost();
}

} // namespace corvina::teste

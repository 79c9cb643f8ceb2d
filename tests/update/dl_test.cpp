// DL against a real HTTPS server on the loopback address: answers, redirects, silences,
// trickles, endless bodies, garbage and missing files; short watchdogs stand in for the game's.

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <functional>
#include <thread>

#include "servidor_https.h"
#include "update/qt/dl.h"

namespace corvina {
namespace {

using teste::Resposta;
using teste::ServidorHttps;

struct Download : testing::Test {
    ServidorHttps servidor;
    QTemporaryDir pasta;
    Download() {
        servidor.confiaNoCertificado();
        qputenv("TEMP", pasta.path().toUtf8());
    }
    QString destino(const char* nome) const { return pasta.filePath(nome); }
    static QByteArray conteudo(const QString& arquivo) {
        QFile f(arquivo);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(none)");
    }
};

TEST_F(Download, TheTextIsTheLastLineWithItsLineEnd) {
    servidor.caminhos["/update.php?prog=Corvina"] =
        Resposta::texto("aviso\r\n!*!x!*!0.2.0!*!https://a/b.deb!*!");
    servidor.caminhos["/velho"] =
        Resposta::so(Resposta::Tipo::Redireciona, servidor.url("/update.php?prog=Corvina"));
    DL dl;
    EXPECT_EQ(dl.GetConteudo(servidor.url("/update.php?prog=Corvina")),
              "!*!x!*!0.2.0!*!https://a/b.deb!*!\r\n");
    EXPECT_EQ(dl.GetConteudo(servidor.url("/velho")), "!*!x!*!0.2.0!*!https://a/b.deb!*!\r\n")
        << "redirects are followed";
    EXPECT_FALSE(QFile::exists(destino("temp01.dat"))) << "the temporary file is deleted";
    EXPECT_EQ(dl.GetConteudo(servidor.url("/nao-ha")), "") << "a 404 is no answer";
}

TEST_F(Download, PlainHttpIsNeverFetchedNorReachedByARedirect) {
    DL dl;
    const int antes = servidor.pedidos;
    EXPECT_EQ(dl.GetConteudo(QString(servidor.url("/x")).replace("https:", "http:")), "");
    EXPECT_EQ(dl.Download("http://127.0.0.1:1/x.deb", destino("x.deb"), {}), Situacao::Falhou);
    EXPECT_EQ(servidor.pedidos, antes);

    servidor.caminhos["/para-http"] = Resposta::so(
        Resposta::Tipo::Redireciona, QString(servidor.url("/bom")).replace("https:", "http:"));
    servidor.caminhos["/bom"] = Resposta::texto("!*!a!*!1.0.0!*!u!*!");
    DL redirecionado;
    EXPECT_EQ(redirecionado.Download(servidor.url("/para-http"), destino("r.deb"), {}, "Id", 2),
              Situacao::Falhou);
    EXPECT_FALSE(QFile::exists(destino("r.deb")));
    EXPECT_EQ(servidor.pedidos, antes + 1) << "the plain address was never asked";
}

TEST_F(Download, ASilentServerIsGivenUpAndTheInstanceStaysGivenUp) {
    servidor.caminhos["/mudo"] = Resposta::so(Resposta::Tipo::Silencio);
    servidor.caminhos["/bom"] = Resposta::texto("!*!a!*!1.0.0!*!u!*!");
    DL dl;
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_EQ(dl.GetConteudo(servidor.url("/mudo"), "Id", 1), "");
    // Neither before its second of silence, nor much after it: the watchdog looks every tenth.
    EXPECT_GE(relogio.elapsed(), 1000);
    EXPECT_LT(relogio.elapsed(), 2000);
    EXPECT_TRUE(dl.abortado());
    EXPECT_EQ(dl.GetConteudo(servidor.url("/bom"), "Id", 0.4), "")
        << "after a give-up the same instance fails by the watchdog";
    DL nova;
    EXPECT_EQ(nova.GetConteudo(servidor.url("/bom"), "Id", 2), "!*!a!*!1.0.0!*!u!*!\r\n");
}

TEST_F(Download, AFileArrivesWithItsProgressAndASlowOneIsNotGivenUp) {
    const QByteArray pacote(200 * 1024, 'p');
    servidor.caminhos["/c.deb"] = Resposta::texto(pacote);
    servidor.caminhos["/lento.deb"] = Resposta::gotejando(QByteArray(8 * 1024, 'l'), 1024, 100);
    DL dl;
    std::vector<int> valores;
    EXPECT_EQ(
        dl.Download(servidor.url("/c.deb"), destino("c.deb"), [&](int v) { valores.push_back(v); }),
        Situacao::Completo);
    EXPECT_EQ(conteudo(destino("c.deb")), pacote);
    ASSERT_FALSE(valores.empty());
    EXPECT_EQ(valores.back(), 100);
    EXPECT_TRUE(std::is_sorted(valores.begin(), valores.end()));

    // About 0.8 s in all, never silent for 0.5 s.
    DL lento;
    EXPECT_EQ(lento.Download(servidor.url("/lento.deb"), destino("lento.deb"), {}, "Id", 0.5),
              Situacao::Completo);
    EXPECT_EQ(conteudo(destino("lento.deb")).size(), 8 * 1024);
}

// Every way a file can fail to come ends failed (or cancelled) with nothing of it on the disk,
// each by its own cause before the watchdog's two seconds (limits set low where said).
TEST_F(Download, EveryFailureEndsSoonAndLeavesNoFile) {
    Resposta mentirosa = Resposta::texto(QByteArray(100, 'm'));
    mentirosa.tamanhoDito = 5000; // the connection closes long before
    servidor.caminhos["/curto.deb"] = mentirosa;
    servidor.caminhos["/lixo"] = Resposta::so(Resposta::Tipo::Lixo);
    servidor.caminhos["/a"] = Resposta::so(Resposta::Tipo::Redireciona, servidor.url("/b"));
    servidor.caminhos["/b"] = Resposta::so(Resposta::Tipo::Redireciona, servidor.url("/a"));
    servidor.caminhos["/sem-fim"] = Resposta::semFimDe(64 * 1024 * 1024);
    servidor.caminhos["/lento.deb"] = Resposta::gotejando(QByteArray(64 * 1024, 'l'), 512, 50);
    servidor.caminhos["/gota.deb"] = Resposta::gotejando(QByteArray(64 * 1024, 'g'), 64, 50);
    const struct {
        const char* caso;
        const char* caminho;
        std::function<void(DL&)> ajusta;
        Situacao esperada;
    } casos[] = {
        {"garbage", "/lixo", {}, Situacao::Falhou},
        {"not found", "/nada.deb", {}, Situacao::Falhou},
        {"a redirect loop", "/a", {}, Situacao::Falhou},
        {"a length that lies", "/curto.deb", {}, Situacao::Falhou},
        {"an endless answer", "/sem-fim",
         [](DL& dl) { dl.maiorArquivo = 256 * 1024; }, // as large as a signed package may be
         Situacao::Falhou},
        {"a byte now and then, never silent: by its rate", "/gota.deb",
         [](DL& dl) {
             dl.limitesDoArquivo = {0, 0.5, 4 * 1024};
         }, // 1.3 KB/s against 4
         Situacao::Falhou},
        {"cancelled", "/lento.deb",
         [](DL& dl) { QTimer::singleShot(200, &dl, [&dl] { dl.CancelDownload(); }); },
         Situacao::Cancelado},
    };
    for (const auto& c : casos) {
        DL dl;
        if (c.ajusta) c.ajusta(dl);
        EXPECT_EQ(dl.Download(servidor.url(c.caminho), destino("x.deb"), {}, "Id", 2), c.esperada)
            << c.caso;
        EXPECT_FALSE(dl.abortado()) << c.caso << ": ended by the watchdog, not by its cause";
        EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList())
            << c.caso << ": something of it stays on the disk";
    }
}

// Two failures that leave a file: one that came without its length (the percentage never
// passes 99), and one already there, never replaced. And a folder that can't be written.
TEST_F(Download, AFileWithoutItsLengthStaysAndAnExistingOneIsNotReplaced) {
    servidor.caminhos["/sem-tamanho.deb"] = Resposta::texto("abc", 200, false);
    servidor.caminhos["/ok.deb"] = Resposta::texto("novo");
    EXPECT_EQ(DL().Download(servidor.url("/sem-tamanho.deb"), destino("s.deb"), {}),
              Situacao::Falhou);
    QFile velho(destino("ok.deb"));
    ASSERT_TRUE(velho.open(QIODevice::WriteOnly));
    velho.write("velho");
    velho.close();
    EXPECT_EQ(DL().Download(servidor.url("/ok.deb"), destino("ok.deb"), {}), Situacao::Completo);
    EXPECT_EQ(conteudo(destino("ok.deb")), "velho");
    EXPECT_EQ(DL().Download(servidor.url("/ok.deb"), "/proc/corvina/ok.deb", {}), Situacao::Falhou);
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Hidden | QDir::Files),
              QStringList({"ok.deb", "s.deb"}))
        << "no temporary file is left behind";
}

// A text answer that never ends, or comes a byte at a time, or from nobody, is no answer.
TEST_F(Download, ATextThatIsEndlessSlowOrFromNobodyIsNoAnswer) {
    servidor.caminhos["/sem-fim"] = Resposta::semFimDe(64 * 1024 * 1024);
    servidor.caminhos["/gota.txt"] = Resposta::gotejando("!*!a!*!1.0.0!*!u!*!", 1, 100);
    EXPECT_EQ(DL().GetConteudo(servidor.url("/sem-fim"), "Id", 5), "");
    DL texto;
    texto.limitesDoTexto = {0.6, 0, 0}; // two seconds of answer against 0.6 allowed
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_EQ(texto.GetConteudo(servidor.url("/gota.txt"), "Id", 2), "");
    EXPECT_LT(relogio.elapsed(), 1500);
    DL morto;
    EXPECT_EQ(morto.GetConteudo("https://127.0.0.1:1/update.php", "Id", 2), "")
        << "nobody listens on port 1";
    EXPECT_FALSE(morto.abortado()) << "refused at once, not given up";
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

// The peak of the process's resident memory, in KiB, since the last reset.
long picoDeMemoria() {
    QFile f("/proc/self/status");
    if (!f.open(QIODevice::ReadOnly)) return -1;
    for (const QByteArray& linha : f.readAll().split('\n'))
        if (linha.startsWith("VmHWM:")) return linha.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}
bool zeraPicoDeMemoria() {
    QFile f("/proc/self/clear_refs");
    return f.open(QIODevice::WriteOnly) && f.write("5") == 1;
}

// A server that sends as fast as the loopback carries, while the window is busy for a second:
// what the network holds for the game stays small; the file still arrives whole.
TEST(DownloadRapido, WhatIsInFlightStaysSmallWhileTheWindowIsBusy) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer keeps freed memory in quarantine: the peak would measure it";
#endif
    constexpr qint64 kTamanho = 96 * 1024 * 1024;
    teste::ServidorEmOutraThread servidor({{"/grande.deb", Resposta::jorroDe(kTamanho)}});
    ServidorHttps::confiaNoCertificado();
    QTemporaryDir pasta;
    DL dl;
    QTimer::singleShot(100, [] { std::this_thread::sleep_for(std::chrono::seconds(1)); });
    if (!zeraPicoDeMemoria()) GTEST_SKIP() << "no reset of the memory's peak here";
    const long antes = picoDeMemoria();
    EXPECT_EQ(dl.Download(servidor.url("/grande.deb"), pasta.filePath("g.deb"), {}, "Id", 30),
              Situacao::Completo);
    EXPECT_EQ(QFileInfo(pasta.filePath("g.deb")).size(), kTamanho);
    EXPECT_LT(picoDeMemoria() - antes, 24 * 1024) << "KiB more at the peak";
}

} // namespace
} // namespace corvina

// The whole update against an HTTPS server on the loopback address: the check of the About
// window and its question, and FrmUp's download, signature check and hand-over. Nothing is
// installed and the run doesn't end: those two steps are recorded instead.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "apoio/chave_de_teste.h"
#include "apoio/janela_modal.h"
#include "servidor_https.h"
#include "update/qt/frm_sobre.h"
#include "update/qt/frm_up.h"

namespace corvina {
namespace {

using teste::quandoAbrir;
using teste::Resposta;

// The test key, in the types of the windows.
struct Chave : teste::ChaveDeTeste {
    QString publicaHex() const { return QString::fromStdString(ChaveDeTeste::publicaHex()); }
    // The signature of a package offered as 3.7.5.
    QString assina(const QByteArray& dados) const {
        return QString::fromStdString(
            assinaPacote(kOferecida, std::string_view(dados.constData(), dados.size())));
    }
    static constexpr const char* kOferecida = "3.7.5";
};

// The text of the message box that opens, and its answer.
void responde(QString* texto, QMessageBox::StandardButton botao = QMessageBox::Ok) {
    quandoAbrir("caixaMensagem", [=](QWidget* w) {
        auto* caixa = static_cast<QMessageBox*>(w);
        *texto = caixa->text();
        QTest::mouseClick(caixa->button(botao), Qt::LeftButton);
    });
}

struct Atualizacao : testing::Test {
    teste::ServidorHttps servidor;
    QTemporaryDir casa;
    Chave chave;
    QByteArray pacote = QByteArray("!<arch>\ndebian-binary   ") + QByteArray(50 * 1024, 'd');
    Atualizacao() {
        servidor.confiaNoCertificado();
        qputenv("HOME", casa.path().toUtf8());
        qputenv("XDG_DOCUMENTS_DIR", casa.path().toUtf8());
        teste::janelasEsperadas().clear();
        servidor.caminhos["/c.deb"] = Resposta::texto(pacote);
    }
    ~Atualizacao() override {
        for (const auto& [nome, feito] : teste::janelasEsperadas())
            EXPECT_TRUE(*feito) << nome << " never opened";
    }
    QStringList instaladores; // what would have been run
    int fins = 0;
    // Runs FrmUp on a link and a signature; the text of the message it ended with.
    QString frmUp(const QString& caminho, const QString& assinatura, QString* destino = nullptr,
                  QString chavePublica = {}, std::function<void(FrmUp&)> ajusta = {}) {
        FrmUp up(nullptr, servidor.url(caminho), Chave::kOferecida, assinatura);
        up.paciencia = 2;
        up.chavePublica = chavePublica.isNull() ? chave.publicaHex() : chavePublica;
        up.executaInstalador = [this](const QString& programa, const QStringList& argumentos) {
            instaladores << programa + " " + argumentos.join(' ');
            return 0;
        };
        up.encerra = [this] { ++fins; };
        if (ajusta) ajusta(up);
        QString texto;
        responde(&texto);
        up.exec();
        if (destino) *destino = up.destino();
        return texto;
    }
};

TEST_F(Atualizacao, ASignedPackageIsHandedToTheInstallerAndTheRunEnds) {
    QString destino;
    EXPECT_EQ(frmUp("/c.deb", chave.assina(pacote), &destino),
              "O Corvina será fechado para que a atualização seja feita");
    ASSERT_EQ(instaladores.size(), 1);
    EXPECT_EQ(instaladores[0], QString("/usr/bin/pkexec %1 %2 3.7.5 %3")
                                   .arg(CORVINA_AJUDANTE, destino, chave.assina(pacote)))
        << "the helper checks again what it installs";
    EXPECT_EQ(fins, 1);
    EXPECT_TRUE(destino.startsWith(casa.path() + "/Corvina-")) << destino.toStdString();
    QFile f(destino);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), pacote);
}

// The helper's refusal reaches the player, after the notice of the closing, and the game goes
// on without the downloaded file.
TEST_F(Atualizacao, TheHelpersRefusalIsToldAndTheGameGoesOn) {
    const struct {
        int codigo;
        const char* mensagem;
    } casos[] = {
        {10, "A atualização recebida não é mais nova que a versão instalada"},
        {126, "A atualização não foi autorizada"},
        {-1, "Não foi possível instalar a atualização"},
    };
    for (const auto& c : casos) {
        QString destino, aviso;
        EXPECT_EQ(frmUp("/c.deb", chave.assina(pacote), &destino, {},
                        [&](FrmUp& up) {
                            up.executaInstalador = [&](const QString&, const QStringList&) {
                                responde(&aviso);
                                return c.codigo;
                            };
                        }),
                  "O Corvina será fechado para que a atualização seja feita");
        EXPECT_EQ(aviso, c.mensagem);
        EXPECT_EQ(fins, 0) << c.codigo;
        EXPECT_FALSE(QFile::exists(destino)) << c.codigo;
    }
}

TEST_F(Atualizacao, NeitherEscapeNorClosingStopsTheDownload) {
    servidor.caminhos["/lento.deb"] = Resposta::gotejando(pacote, 8 * 1024, 60);
    QString destino;
    EXPECT_EQ(frmUp("/lento.deb", chave.assina(pacote), &destino, {},
                    [](FrmUp& up) {
                        QTimer::singleShot(150, &up, [&up] {
                            QTest::keyClick(&up, Qt::Key_Escape);
                            up.close();
                            EXPECT_TRUE(up.isVisible()) << "still downloading";
                        });
                    }),
              "O Corvina será fechado para que a atualização seja feita");
    EXPECT_EQ(instaladores.size(), 1);
}

TEST_F(Atualizacao, AFileGoneAfterAGoodDownloadIsReportedAsNotFound) {
    // A link left at the fresh name keeps the download from being renamed into place.
    const QString atalho = casa.filePath("Corvina-atalho.deb");
    ASSERT_TRUE(QFile::link(casa.filePath("nada"), atalho));
    EXPECT_EQ(frmUp("/c.deb", chave.assina(pacote), nullptr, {},
                    [&](FrmUp& up) { up.escolheDestino = [=] { return atalho; }; }),
              "Não foi possivel localizar o arquivo de instalação\n\nTente novamente mais "
              "tarde ou faça o download no site " CORVINA_SITE);
    EXPECT_TRUE(instaladores.isEmpty());
    EXPECT_EQ(fins, 0);
}

TEST_F(Atualizacao, NothingUnsignedOrBrokenIsEverStarted) {
    QByteArray outro = pacote;
    outro[100] = 'X';
    servidor.caminhos["/cortado.deb"] = Resposta::texto(pacote.left(1000), 200);
    const struct {
        const char* caso;
        const char* caminho;
        QString assinatura, chavePublica;
    } casos[] = {
        {"signed by someone else", "/c.deb", Chave().assina(pacote), {}},
        {"a file that isn't the one signed", "/c.deb", chave.assina(outro), {}},
        {"no signature", "/c.deb", "", {}},
        {"no key built in", "/c.deb", chave.assina(pacote), ""},
        {"a truncated download", "/cortado.deb", chave.assina(pacote), {}},
        {"a missing file", "/nada.deb", chave.assina(pacote), {}},
    };
    for (const auto& c : casos) {
        QString destino;
        EXPECT_EQ(frmUp(c.caminho, c.assinatura, &destino, c.chavePublica),
                  "Não foi possivel fazer o download da atualização")
            << c.caso;
        EXPECT_FALSE(QFile::exists(destino)) << c.caso;
    }
    EXPECT_TRUE(instaladores.isEmpty());
    EXPECT_EQ(fins, 0) << "the game goes on";
}

TEST_F(Atualizacao, TheAboutWindowChecksAsksAndOpensTheDownload) {
    const QString oferta =
        "!*!Corvina!*!3.7.5!*!" + servidor.url("/c.deb") + "!*!" + chave.assina(pacote) + "!*!";
    const struct {
        const char* caso;
        Resposta resposta;
        QMessageBox::StandardButton botao;
        QString mensagem;
        bool baixa;
    } casos[] = {
        {"newer, accepted", Resposta::texto(("aviso\r\n" + oferta).toUtf8()), QMessageBox::Yes,
         "Você está utilizando a versão 3.7.4\n\nDeseja atualizar para a versão 3.7.5 agora?",
         true},
        {"newer, refused", Resposta::texto(oferta.toUtf8()), QMessageBox::No,
         "Você está utilizando a versão 3.7.4\n\nDeseja atualizar para a versão 3.7.5 agora?",
         false},
        {"the same version", Resposta::texto("!*!Corvina!*!3.7.4!*!u!*!"), QMessageBox::Ok,
         "Você já está utilizando a versão mais recente do Corvina", false},
        {"an older version", Resposta::texto("!*!Corvina!*!3.7.3!*!u!*!"), QMessageBox::Ok,
         "Você já está utilizando a versão mais recente do Corvina", false},
        {"garbage", Resposta::so(Resposta::Tipo::Lixo), QMessageBox::Ok,
         "Não foi possível conectar ao servidor", false},
        {"a silent server", Resposta::so(Resposta::Tipo::Silencio), QMessageBox::Ok,
         "Não foi possível conectar ao servidor", false},
    };
    for (const auto& c : casos) {
        servidor.caminhos["/update.php?prog=Corvina"] = c.resposta;
        FrmSobre sobre(nullptr, versaoDoPrograma());
        sobre.servidor = servidor.url("/");
        sobre.paciencia = 0.5;
        QStringList abertos;
        sobre.abreFrmUp = [&](const QString& link, const QString& versao,
                              const QString& assinatura) {
            abertos << link << versao << assinatura;
        };
        EXPECT_EQ(sobre.findChild<QLabel*>("Label1")->text(), "Lunaris - Corvina  3.7.4");
        QString texto;
        responde(&texto, c.botao);
        sobre.atualizar();
        EXPECT_EQ(texto, c.mensagem) << c.caso;
        EXPECT_EQ(!abertos.isEmpty(), c.baixa) << c.caso;
        if (c.baixa) {
            EXPECT_EQ(abertos,
                      QStringList({servidor.url("/c.deb"), "3.7.5", chave.assina(pacote)}));
        }
        EXPECT_TRUE(sobre.findChild<QPushButton*>("Command1")->isEnabled()) << c.caso;
    }
}

} // namespace
} // namespace corvina

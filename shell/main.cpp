// Corvina: the splash for a second, the table prepared meanwhile, then the table.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScreen>
#include <QTimer>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/jogo.h"
#include "machine/nivel_da_mesa.h"
#include "midia/audio/musica_fluidsynth.h"
#include "midia/imagens.h"
#include "midia/ondas_qt.h"
#include "midia/pastas.h"
#include "players/fim_da_partida.h"
#include "players/highcor.h"
#include "players/qt/caixa_do_sistema.h"
#include "players/qt/settings.h"
#include "players/textos_jogadores.h"
#include "shell/janela_mesa.h"
#include "shell/janelas_qt.h"
#include "shell/mesa_acessivel.h"
#include "shell/splash.h"
#include "shell/vista_qt.h"
#include "table/comandos.h"
#include "table/tamanho_da_mesa.h"
#include "update/versao.h"

namespace {

std::string bancoDoJogo() {
    const QString pasta = corvina::pastaDeDados();
    QDir().mkpath(pasta);
    return QFile::encodeName(pasta + "/corvina.db").toStdString();
}

// Everything the table needs, built while the splash is up.
struct Programa {
    corvina::Imagens imagens{corvina::pastaDeImagens()};
    corvina::Settings settings;
    corvina::BancoDoJogo banco{bancoDoJogo()};
    corvina::VistaQt vista{settings, banco};
    corvina::OndasQt ondas;
    corvina::MusicaFluidSynth musica;
    corvina::Som som{corvina::pastaDosSons().toStdString(), ondas, musica};
    corvina::AcasoDoRelogio acaso;
    // The machine's seat; the view lets it think on a worker while the window goes on.
    corvina::NivelDaMesa nivel;
    corvina::Jogo jogo{vista, acaso, nivel};
    corvina::JanelasQt janelas;
    corvina::JanelaMesa janela{jogo, vista, imagens};
    bool avisouFalha = false;

    explicit Programa(corvina::Versao versao) : janelas(jogo, settings, banco, &som, versao) {
        // A write that fails is told once a run; what it held is written at the next chance.
        const auto avisa = [this] {
            if (std::exchange(avisouFalha, true)) return;
            QTimer::singleShot(0, &janela, [this] {
                corvina::avisoDoSistema(&janela,
                                        corvina::comQuebras(corvina::texto::kFalhaAoGravar), {},
                                        QMessageBox::Warning);
            });
        };
        settings.aoFalhar(avisa);
        banco.aoFalhar(avisa);
        corvina::preparaDados(settings, banco);
        vista.liga(jogo);
        vista.som(&som);
        vista.janelas(&janelas);
        janelas.dono(&janela);
        janelas.imagens(&imagens);
        nivel.segue(jogo.modulo);
        // The run ends with the window: the match under way was kept at its last rest, and
        // nothing waits.
        janela.aoEncerrar([this] {
            settings.salva();
            banco.salva();
            std::fflush(nullptr);
            std::_Exit(0);
        });
        corvina::Form_Load(jogo);
        corvina::preparaHighcor(corvina::pastaDeDados().toStdString());
        corvina::CentraJanela(janela);
        janela.grab(); // the first paint, so that showing it costs nothing more
    }
};

// The game's own file, as the system found it. Started through the dynamic loader
// ("ld-linux-x86-64.so.2 ./corvina"), the system ran the loader, and the game is the path the
// loader was given; "" when that can't be told.
std::string esteProgramaNoDisco(const char* argumento0) {
    char caminho[PATH_MAX];
    const ssize_t n = ::readlink("/proc/self/exe", caminho, sizeof caminho - 1);
    if (n <= 0) return {};
    const std::string exe(caminho, static_cast<std::size_t>(n));
    const std::string nome = exe.substr(exe.rfind('/') + 1);
    if (nome.rfind("ld-", 0) != 0) return exe;
    char real[PATH_MAX];
    if (!argumento0 || !std::strchr(argumento0, '/') || !::realpath(argumento0, real)) return {};
    return ::access(real, X_OK) == 0 ? real : std::string();
}

// A large screen the desktop left at ratio 1 (a 4K monitor without scaling): the program
// starts again with Qt's scale factor, as on a desktop that scales, so that the small windows
// grow with the table. Any scaling the user asked of Qt is kept as it is, and the test
// platforms have no screen to scale.
void escalaATela(char** argumentos) {
    for (const char* pedido : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                               "QT_ENABLE_HIGHDPI_SCALING", "QT_USE_PHYSICAL_DPI"})
        if (qEnvironmentVariableIsSet(pedido)) return;
    const QString plataforma = QGuiApplication::platformName();
    const QScreen* tela = QGuiApplication::primaryScreen();
    if (!tela || plataforma == "offscreen" || plataforma == "minimal") return;
    const int fator =
        corvina::fatorDaTela(tela->availableGeometry().width(), tela->availableGeometry().height(),
                             tela->devicePixelRatio());
    if (fator <= 1) return;
    const std::string programa = esteProgramaNoDisco(argumentos[0]);
    if (programa.empty()) return;
    qputenv("QT_SCALE_FACTOR", QByteArray::number(fator));
    ::execv(programa.c_str(), argumentos);
    qunsetenv("QT_SCALE_FACTOR"); // it could not start again: this run goes on unscaled
}

} // namespace

int main(int argc, char** argv) {
    using namespace corvina;
    std::vector<char*> argumentos(argv, argv + argc); // as given: Qt takes its own out of argv
    argumentos.push_back(nullptr);
    QApplication app(argc, argv);
    escalaATela(argumentos.data());
    QApplication::setOrganizationName("Lunaris");
    QApplication::setApplicationName("Corvina");
    const Versao versao = versaoDoPrograma();
    QApplication::setApplicationVersion(QString::fromStdString(versaoParaChecagem(versao)));
    instalaMesaAcessivel(); // before any window, so that the table is never read as a blank

    const QPixmap figura = figuraDoSplash(QGuiApplication::primaryScreen()
                                              ? QGuiApplication::primaryScreen()->devicePixelRatio()
                                              : 1.0);
    Splash splash(figura, QString::fromStdString(versaoParaUsuario(versao)));
    CentraJanela(splash);
    splash.show();
    QElapsedTimer relogio;
    relogio.start();
    QApplication::processEvents(); // the splash is on the screen before any work starts

    const auto mesa = std::make_unique<Programa>(versao);
    constexpr int kEsperaDoSplash = 1000;
    QTimer::singleShot(std::max<qint64>(0, kEsperaDoSplash - relogio.elapsed()), [&] {
        mesa->janela.show();
        splash.close();
    });
    return QApplication::exec();
}

// Corvina: the splash for a second, then the table.

#include <QApplication>
#include <QTimer>

#include "core/jogo.h"
#include "players/highcor.h"
#include "players/qt/pastas.h"
#include "players/qt/settings.h"
#include "shell/imagens.h"
#include "shell/audio/musica_fluidsynth.h"
#include "shell/janela_mesa.h"
#include "shell/ondas_qt.h"
#include "shell/splash.h"
#include "shell/vista_qt.h"
#include "table/comandos.h"

int main(int argc, char** argv) {
    using namespace corvina;
    QApplication app(argc, argv);
    QApplication::setOrganizationName("Lunaris");
    QApplication::setApplicationName("Corvina");
    QApplication::setApplicationVersion(CORVINA_VERSAO);

    const Imagens imagens(pastaDeImagens());
    Settings settings;
    VistaQt vista(settings);
    OndasQt ondas;
    MusicaFluidSynth musica;
    Som som(pastaDosSons().toStdString(), ondas, musica);
    vista.som(&som);
    AcasoDoRelogio acaso;
    Jogo jogo(vista, acaso);
    vista.liga(jogo);
    JanelaMesa mesa(jogo, vista, imagens);

    Splash splash(imagens.splash(), textoDaVersao(CORVINA_VERSAO_MAJOR, CORVINA_VERSAO_MINOR,
                                                  CORVINA_VERSAO_REVISAO));
    CentraJanela(splash);
    splash.show();
    constexpr int kEsperaDoSplash = 1000;
    QTimer::singleShot(kEsperaDoSplash, &mesa, [&] {
        Form_Load(jogo);
        preparaHighcor(pastaDeDados().toStdString());
        CentraJanela(mesa);
        mesa.show();
        splash.close();
    });
    return QApplication::exec();
}

#include "shell/corvinahlp/janela_da_ajuda.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QScreen>
#include <QShortcut>

#include "midia/imagens.h"
#include "shell/corvinahlp/texto_da_ajuda.h"

namespace corvina {

JanelaDaAjuda::JanelaDaAjuda() {
    setObjectName("Ajuda");
    setWindowTitle("Corvina - Ajuda");
    setSearchPaths({pastaDeImagens()});
    setOpenLinks(false);
    setHtml(textoDaAjuda());
    // In the game's colours: light paper framed in the table's wood.
    setStyleSheet("QTextBrowser { background: rgb(250,248,240); color: rgb(30,30,30);"
                  " border: 8px solid rgb(84,52,30); padding: 10px;"
                  " font-family: 'DejaVu Sans'; font-size: 14px; }");
    resize(560, 620);
    // Centred on its screen, where no window manager places it.
    if (const QScreen* tela = QGuiApplication::primaryScreen())
        move(tela->availableGeometry().center() - rect().center());
    for (const QKeySequence& tecla :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_Q)})
        connect(new QShortcut(tecla, this), &QShortcut::activated, this, &QWidget::close);
}

} // namespace corvina

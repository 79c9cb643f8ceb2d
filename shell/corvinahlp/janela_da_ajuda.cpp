#include "shell/corvinahlp/janela_da_ajuda.h"

#include <QKeySequence>
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
    resize(560, 620);
    for (const QKeySequence& tecla :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_Q)})
        connect(new QShortcut(tecla, this), &QShortcut::activated, this, &QWidget::close);
}

} // namespace corvina

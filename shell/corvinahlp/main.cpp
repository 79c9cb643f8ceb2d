// corvinahlp: the rules of Corvina in a small window of their own.

#include <QApplication>
#include <QTextBrowser>

#include "shell/corvinahlp/texto_da_ajuda.h"
#include "shell/imagens.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QTextBrowser ajuda;
    ajuda.setWindowTitle("Corvina - Ajuda");
    ajuda.setSearchPaths({corvina::pastaDeImagens()});
    ajuda.setOpenLinks(false);
    ajuda.setHtml(corvina::textoDaAjuda());
    ajuda.resize(560, 620);
    ajuda.show();
    return QApplication::exec();
}

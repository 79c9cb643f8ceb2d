// corvinahlp: the rules of Corvina in a small window of their own.

#include <QApplication>

#include "shell/corvinahlp/janela_da_ajuda.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    corvina::JanelaDaAjuda ajuda;
    ajuda.show();
    return QApplication::exec();
}

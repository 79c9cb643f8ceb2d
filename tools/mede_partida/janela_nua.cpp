// A bare 800 by 600 Qt window: the yardstick for how soon the table can appear.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget janela;
    janela.setWindowTitle("janela-nua");
    janela.setFixedSize(800, 600);
    janela.show();
    return QApplication::exec();
}

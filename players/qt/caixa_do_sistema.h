#pragma once
// The system's message boxes in the game's words: the program's title, "Sim" and "Não".
// Each is named "caixaMensagem", so that a test can find it open.

#include <QMessageBox>
#include <QString>

namespace corvina {

// An OK box; the title is the program's when none is given.
void avisoDoSistema(QWidget* dono, const QString& texto, const QString& titulo = {},
                    QMessageBox::Icon icone = QMessageBox::NoIcon);
// A question with Sim and Não; true on Sim.
bool perguntaDoSistema(QWidget* dono, const QString& texto, const QString& titulo = {},
                       QMessageBox::Icon icone = QMessageBox::NoIcon);

// The game's texts break their lines with a carriage return, which Qt would show as a blank.
QString comQuebras(QString texto);

} // namespace corvina

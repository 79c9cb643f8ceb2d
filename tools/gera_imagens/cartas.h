#pragma once
// The cards of the picture generator: faces and backs, and what the table's pictures share with
// them (the key colour, the font, the suits' shapes).

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

namespace corvina::gera {

extern const QColor kMesa;          // the key colour: the table, and the corners of every card
extern const char* const kNaipes[]; // file names of the suits, 1..4
extern bool gQuatroCores;           // faces in four colours: diamonds blue, clubs green

QString fonte();
void desenhaNaipe(QPainter& p, int naipe, QPointF centro, double tamanho, bool invertido = false,
                  QColor cor = QColor());
QImage face(int naipe, int valor);
QImage verso(int tipo);

} // namespace corvina::gera

#pragma once
// Where the table window's parts stand, in pixels (twips / 15): what the painter draws there and
// what a click there reaches.

#include <QColor>
#include <QPoint>
#include <QRect>

namespace corvina::lugar {

// The table panel in the window; the cards' places are relative to it.
inline const QPoint kPainel(21, 123);
inline const QSize kTamanhoDoPainel(753, 427);
inline const QRect kLabel1(33, 563, 517, 16);
inline const QRect kStatus(577, 563, 95, 16);
inline const QRect kLabel4(685, 563, 97, 17);
inline const QRect kFaixaDoTitulo(0, 0, 676, 73);
inline const QRect kMinimizar(709, 23, 33, 32);
inline const QRect kSobre(679, 25, 24, 31);
inline const QRect kBotoes[] = {{21, 80, 126, 30},  {154, 80, 121, 30}, {282, 80, 121, 30},
                                {409, 80, 122, 30}, {537, 80, 118, 30}, {661, 80, 118, 30},
                                {749, 23, 31, 31}};
inline constexpr int kBotoesAcesos = 6; // the seventh, the closing square, has no light
// The patch over the status bar's divider, shown outside assisted mode.
inline const QRect kImgNTrincas(566, 560, 10, 25);
inline const QColor kBarra(30, 20, 12);
// Labels on the panel, in pixels from its corner.
inline const QRect kLabel6(122, 299, 531, 15);
inline const QRect kPlacar1(15, 288, 40, 34), kPlacar2(15, 110, 38, 34);
inline const QRect kLabel10(114, 311, 20, 15), kLabel11(105, 107, 23, 15);
// Beside the pile, right of it: the opponent's level and the deal, and the hint's command.
// The right column of the felt; its longest line ends some 8 pixels inside the felt's edge.
inline const QRect kNivel(585, 290, 176, 36);
inline const QRect kDica(585, 332, 176, 18);
inline const QRect kQuatroCores(585, 352, 194, 18);

inline const QColor kOuroDaDica(250, 214, 90);
inline const QColor kFeltro(21, 130, 64); // the panel's green, around the table in full screen
inline const QColor kCorDoFoco(255, 255, 255);
inline const QColor kTextoClaro(240, 230, 200);

} // namespace corvina::lugar

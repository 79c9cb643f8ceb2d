#pragma once
// The table's commands around the play: a new match, the card back, the hint, the counts, and
// the settings written when the window closes.

#include "core/jogo.h"

namespace corvina {

inline constexpr int kTeclaF1 = 112, kTeclaF2 = 113, kTeclaF3 = 114, kTeclaF4 = 115, kTeclaF5 = 116,
                     kTeclaF6 = 117, kTeclaF7 = 118, kTeclaF8 = 119, kTeclaF9 = 120,
                     kTeclaF10 = 121;
inline constexpr int kShiftCtrl = 2;

// The table window loads: the counts hidden, the row's height taken from the layout, the
// settings read and the back put on the stock.
void Form_Load(Jogo& jogo);

// Puts the back tipoCarta on the stock, its edges and the machine's row.
void aplicaCostas(Jogo& jogo);

// A new match through the choice of player; the hand in progress is dropped unless the
// choice is cancelled. Waits (does nothing) while the machine plays.
void novaPartida(Jogo& jogo);

// What a command asks of the window around the table: to close, or to start the help program.
enum class PedidoDaTecla { Nenhum, Fechar, Ajuda };

// The toolbar: 1 NOVO, 2 OPÇÕES, 3 RECORDES, 4 CARTAS, 5 AJUDA, 6 SAIR, 7 the closing square.
inline constexpr int kBotaoNovo = 1, kBotaoOpcoes = 2, kBotaoRecordes = 3, kBotaoCartas = 4,
                     kBotaoAjuda = 5, kBotaoSair = 6, kBotaoFechar = 7;
PedidoDaTecla Btn_Click(Jogo& jogo, int index);

// The function keys; only F2 to F10 and Ctrl+F1 do anything.
PedidoDaTecla Form_KeyDown(Jogo& jogo, int keyCode, int shift);

// The settings, and then the last player, written when the window closes.
void Form_QueryUnload(Jogo& jogo);
void Form_Unload(Jogo& jogo);

} // namespace corvina

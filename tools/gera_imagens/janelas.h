#pragma once
// The surfaces of the small windows, in the same hand as the table: dark wood, a green felt
// panel, gold lines. Texts that change are drawn by the game over them; what never changes
// (the hall's headings and buttons, the eight backs) is drawn here.

#include <QImage>
#include <array>

// Every picture is drawn in logical pixels at the scale in use: 1, or 2 for the "@2x" set that
// screens scaled to 150% and more show. A picture of 71 by 96 is then 142 by 192 pixels.
void usaEscala(int escala);
QImage novaImagem(QSize logico, QImage::Format formato = QImage::Format_RGB32);

QImage janelaNome();                                     // FrmNome, 420 by 288
QImage janelaNovoJogador();                              // FrmNovoJogador, 344 by 130
QImage janelaRecords();                                  // FrmRecords, 642 by 317
QImage janelaOpcoes();                                   // FrmOpc, 376 by 235
QImage janelaTipos(const std::array<QImage, 8>& versos); // frmtipos, 338 by 261
QImage janelaSimNao();                                   // FrmSimNao, 400 by 130
QImage janelaPlacar();                                   // FrmPlacar, 345 by 176
QImage janelaNivel();                                    // FrmNivel, 380 by 270
QImage janelaEstatisticas();                             // FrmEstatisticas, 600 by 480
QImage janelaRevisao();                                  // FrmRevisao, 660 by 520
QImage janelaSobre(const QImage& verso);                 // FrmSobre's client area, 430 by 189

// The program's icon at a size of `lado` pixels: two cards fanned on the felt, the front one an
// ace of hearts.
QImage icone(int lado, const QImage& verso, const QImage& as);

// The corners of key colour made clear, to lay a card over something else.
QImage semCantos(const QImage& carta);

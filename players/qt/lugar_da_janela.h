#pragma once
// Where the windows stand and how the borderless ones are dragged: written once, for every
// window that needs it.

class QWidget;

namespace corvina {

// Centred on the screen it stands on.
void CentraJanela(QWidget& janela);

// Centred on its owner's window; on the screen when it has none.
void centraNoDono(QWidget& janela);

// Moved, where it reaches past it, wholly onto the free area of the screen it stands on.
void ficaNaTela(QWidget& janela);

// Lets the window system drag a window that has no title bar, while the left button is held
// on its handle.
void moveJanela(QWidget& janela);

} // namespace corvina

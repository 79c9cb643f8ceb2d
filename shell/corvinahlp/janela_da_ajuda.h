#pragma once
// The help window: the rules with the game's cards, closed by Escape or Ctrl+Q as well as by
// the window manager.

#include <QTextBrowser>

namespace corvina {

class JanelaDaAjuda : public QTextBrowser {
  public:
    JanelaDaAjuda();
};

} // namespace corvina

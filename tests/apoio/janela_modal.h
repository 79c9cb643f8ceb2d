#pragma once
// Acting on a modal window from inside its own loop, as a person would once it is open.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvina::teste {

// The windows waited for since the last clear, and whether each opened.
std::vector<std::pair<std::string, std::shared_ptr<bool>>>& janelasEsperadas();

// Runs `acao` on the window whose object name is `nome` once it has stood open as the modal
// window for a few turns of its loop (so that its own first activation has run).
void quandoAbrir(const char* nome, std::function<void(QWidget*)> acao);

} // namespace corvina::teste

#pragma once
// The small windows' commands as accessibility tools see them: buttons named by their texts,
// pressed by the tools' default action.

namespace corvina {

// Makes every Comando answer as a button; once per program.
void instalaComandoAcessivel();

} // namespace corvina

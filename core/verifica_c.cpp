#include "core/verifica_c.h"

namespace corvina {

bool VerificaC(const Mesa& mesa, const Casas& naipes, const Casas& valores) {
    for (int i = 1; i <= mesa.qtdJog; ++i) {
        bool achou = false;
        for (int j = 1; j <= mesa.qtdJog && !achou; ++j)
            achou = mesa.jogNaipe[j] == naipes[i] && mesa.jogValor[j] == valores[i];
        if (!achou) return false;
    }
    return true;
}

} // namespace corvina

#include "table/tamanho_da_mesa.h"

#include <algorithm>

#include "core/ajustes.h"

namespace corvina {

namespace {
// Of the screen's free height, what the table may take: room is left for other windows.
constexpr int kParteDaAltura = 3, kDaAltura = 4;
// The free height of a common screen (1920 by 1080 less a panel), and the most we scale.
constexpr int kAlturaComum = 1000, kMaiorFator = 3;
} // namespace

int maiorTamanhoQueCabe(int larguraLivre, int alturaLivre) {
    int maior = kTamanhosDaMesa.front();
    for (const int t : kTamanhosDaMesa)
        if (kAlturaDaMesa * t * kDaAltura <= alturaLivre * kParteDaAltura * 100 &&
            kLarguraDaMesa * t <= larguraLivre * 100)
            maior = t;
    return maior;
}

int tamanhoDaMesa(std::string_view guardado, int larguraLivre, int alturaLivre) {
    const int cabe = maiorTamanhoQueCabe(larguraLivre, alturaLivre);
    if (guardado.empty()) return cabe;
    const long pedido = numeroDoTexto(guardado);
    int escolhido = kTamanhosDaMesa.front();
    for (const int t : kTamanhosDaMesa)
        if (t <= pedido) escolhido = t;
    return std::min(escolhido, cabe);
}

int fatorDaTela(int alturaLivre, double razao) {
    if (razao != 1.0) return 1; // the desktop scales already
    return std::clamp(alturaLivre / kAlturaComum, 1, kMaiorFator);
}

} // namespace corvina

#include "table/tamanho_da_mesa.h"

#include <algorithm>

#include "core/ajustes.h"

namespace corvina {

namespace {
// Of the screen's free height, what the table may take: room is left for other windows.
constexpr int kParteDaAltura = 3, kDaAltura = 4;
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

} // namespace corvina

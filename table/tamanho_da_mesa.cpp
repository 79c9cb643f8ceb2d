#include "table/tamanho_da_mesa.h"

#include <algorithm>

#include "core/ajustes.h"

namespace corvina {

namespace {
// Of the screen's free height, what the table may take: room is left for other windows.
constexpr int kParteDaAltura = 3, kDaAltura = 4;
// The free area of a common screen (1920 by 1080 less a panel), and the most we scale.
constexpr int kLarguraComum = 1900, kAlturaComum = 1000, kMaiorFator = 3;
} // namespace

int maiorTamanhoQueCabe(int larguraLivre, int alturaLivre) {
    int maior = kTamanhosDaMesa.front();
    for (const int t : kTamanhosDaMesa)
        if (kAlturaDaMesa * t * kDaAltura <= alturaLivre * kParteDaAltura * 100 &&
            kLarguraDaMesa * t <= larguraLivre * 100)
            maior = t;
    return maior;
}

std::vector<int> tamanhosQueCabem(int larguraLivre, int alturaLivre) {
    const int maior = maiorTamanhoQueCabe(larguraLivre, alturaLivre);
    std::vector<int> cabem;
    for (const int t : kTamanhosDaMesa)
        if (t <= maior ||
            (kLarguraDaMesa * t <= larguraLivre * 100 && kAlturaDaMesa * t <= alturaLivre * 100))
            cabem.push_back(t);
    return cabem;
}

double fatorQuePreenche(int largura, int altura) {
    return std::max(0.0, std::min(static_cast<double>(largura) / kLarguraDaMesa,
                                  static_cast<double>(altura) / kAlturaDaMesa));
}

int tamanhoDaMesa(std::string_view guardado, int larguraLivre, int alturaLivre) {
    if (guardado.empty()) return maiorTamanhoQueCabe(larguraLivre, alturaLivre);
    // A size chosen stands while its table lies wholly on the screen.
    const int cabe = tamanhosQueCabem(larguraLivre, alturaLivre).back();
    const long pedido = numeroDoTexto(guardado);
    int escolhido = kTamanhosDaMesa.front();
    for (const int t : kTamanhosDaMesa)
        if (t <= pedido) escolhido = t;
    return std::min(escolhido, cabe);
}

int fatorDaTela(int larguraLivre, int alturaLivre, double razao) {
    if (razao != 1.0) return 1; // the desktop scales already
    return std::clamp(std::min(larguraLivre / kLarguraComum, alturaLivre / kAlturaComum), 1,
                      kMaiorFator);
}

} // namespace corvina

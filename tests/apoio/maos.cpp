#include "apoio/maos.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace corvina::teste {

std::vector<Carta> cartas(std::string_view texto) {
    auto lidas = lerCartas(texto);
    if (!lidas) throw std::invalid_argument("bad card string: " + std::string(texto));
    return *lidas;
}

void poeMao(Mesa& mesa, Lado lado, std::string_view texto) {
    const auto lista = cartas(texto);
    Mao mao = maoDe(mesa, lado);
    mao.qtd = static_cast<int16>(lista.size());
    for (std::size_t i = 0; i < lista.size(); ++i)
        poeCarta(mao.valor, mao.naipe, static_cast<int>(i + 1), lista[i]);
}

Mesa mesaCom(Lado lado, std::string_view texto) {
    Mesa mesa;
    poeMao(mesa, lado, texto);
    return mesa;
}

std::string textoDaMao(Mesa& mesa, Lado lado) {
    const Mao mao = maoDe(mesa, lado);
    std::vector<Carta> lista;
    for (int i = 1; i <= mao.qtd; ++i) lista.push_back(cartaNa(mao.valor, mao.naipe, i));
    return escreveCartas(lista);
}

std::string textoDosGrupos(const Mesa& mesa) {
    std::vector<Carta> lista;
    for (int i = 1; i <= mesa.qtdGrupo; ++i)
        lista.push_back(cartaNa(mesa.grupoValor, mesa.grupoNaipe, i));
    return escreveCartas(lista);
}

} // namespace corvina::teste

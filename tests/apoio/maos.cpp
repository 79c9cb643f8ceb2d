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

void armaMesa(Mesa& mesa, int16& qtdDescarte, std::string_view jog, std::string_view mac,
              std::string_view topo, std::string_view monte) {
    poeMao(mesa, Lado::Jog, jog);
    poeMao(mesa, Lado::Mac, mac);
    if (!topo.empty()) {
        const Carta c = cartas(topo).at(0);
        mesa.discarteValor = c.valor;
        mesa.discarteNaipe = c.naipe;
        qtdDescarte = 1;
    }
    const auto m = cartas(monte);
    for (std::size_t i = 0; i < m.size(); ++i)
        poeCarta(mesa.baralhoValor, mesa.baralhoNaipe, static_cast<int>(i + 1), m[i]);
    mesa.qtdBaralho = static_cast<int16>(m.size());
}

std::string textoDosGrupos(const Mesa& mesa) {
    std::vector<Carta> lista;
    for (int i = 1; i <= mesa.qtdGrupo; ++i)
        lista.push_back(cartaNa(mesa.grupoValor, mesa.grupoNaipe, i));
    return escreveCartas(lista);
}

} // namespace corvina::teste

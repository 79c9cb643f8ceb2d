#include "cli/json_cartas.h"

#include <cstdint>

namespace corvina::cli {

using json = nlohmann::ordered_json;

const Pedido& campo(const Pedido& pedido, const char* nome) {
    const auto it = pedido.find(nome);
    if (it == pedido.end()) throw PedidoInvalido(std::string("missing field \"") + nome + "\"");
    return *it;
}

std::string texto(const Pedido& pedido, const char* nome) {
    const Pedido& v = campo(pedido, nome);
    if (!v.is_string()) throw PedidoInvalido(std::string("\"") + nome + "\" must be a string");
    return v.get<std::string>();
}

long inteiro(const Pedido& pedido, const char* nome, long minimo, long maximo) {
    const Pedido& v = campo(pedido, nome);
    if (!v.is_number_integer())
        throw PedidoInvalido(std::string("\"") + nome + "\" must be a whole number");
    // A number above the signed range is stored unsigned: it must not wrap into a small one.
    const bool grandeDemais = v.is_number_unsigned() && maximo >= 0 &&
                              v.get<std::uint64_t>() > static_cast<std::uint64_t>(maximo);
    const long n = grandeDemais ? maximo : v.get<long>();
    if (grandeDemais || n < minimo || n > maximo)
        throw PedidoInvalido(std::string("\"") + nome + "\" must lie in " + std::to_string(minimo) +
                             ".." + std::to_string(maximo));
    return n;
}

bool booleano(const Pedido& pedido, const char* nome) {
    const Pedido& v = campo(pedido, nome);
    if (!v.is_boolean())
        throw PedidoInvalido(std::string("\"") + nome + "\" must be true or false");
    return v.get<bool>();
}

Lado lado(const Pedido& pedido) {
    const auto l = ladoDaChave(texto(pedido, "side"));
    if (!l) throw PedidoInvalido("\"side\" must be \"Jog\" or \"Mac\"");
    return *l;
}

Carta carta(const Pedido& valor, const char* nome) {
    if (!valor.is_string())
        throw PedidoInvalido(std::string("cards in \"") + nome + "\" are strings like \"7/1\"");
    const auto c = lerCarta(valor.get<std::string>());
    if (!c)
        throw PedidoInvalido(std::string("bad card \"") + valor.get<std::string>() + "\" in \"" +
                             nome + "\": value 1..13 / suit 1..4");
    return *c;
}

std::vector<Carta> cartas(const Pedido& pedido, const char* nome,
                          std::initializer_list<std::size_t> tamanhos) {
    const Pedido& v = campo(pedido, nome);
    if (!v.is_array()) throw PedidoInvalido(std::string("\"") + nome + "\" must be an array");
    bool cabe = false;
    std::string lista;
    for (const std::size_t t : tamanhos) {
        cabe = cabe || v.size() == t;
        lista += (lista.empty() ? "" : " or ") + std::to_string(t);
    }
    if (!cabe) throw PedidoInvalido(std::string("\"") + nome + "\" must hold " + lista + " cards");
    std::vector<Carta> saida;
    for (const Pedido& c : v) saida.push_back(carta(c, nome));
    return saida;
}

json paraJson(const std::vector<Carta>& cartas) {
    json lista = json::array();
    for (const Carta c : cartas) lista.push_back(escreveCarta(c));
    return lista;
}

std::vector<Carta> listaDeCartas(const Pedido& p, const char* nome, std::size_t maximo) {
    const Pedido& v = campo(p, nome);
    if (!v.is_array() || v.size() > maximo)
        throw PedidoInvalido(std::string("\"") + nome + "\" must be an array of at most " +
                             std::to_string(maximo) + " cards");
    std::vector<Carta> lista;
    for (const Pedido& c : v) lista.push_back(carta(c, nome));
    return lista;
}

} // namespace corvina::cli

#pragma once
// Reading the fields of a request, with errors that name what is wrong.

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/carta.h"
#include "core/lado.h"

namespace corvina::cli {

// A request that can't be answered; its text goes back as {"error": ...}.
struct PedidoInvalido : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A request as read: the plain JSON type, whose objects find and insert keys in logarithmic
// time. The answers keep their fields in order (ordered_json).
using Pedido = nlohmann::json;

const Pedido& campo(const Pedido& pedido, const char* nome);
std::string texto(const Pedido& pedido, const char* nome);
long inteiro(const Pedido& pedido, const char* nome, long minimo, long maximo);
bool booleano(const Pedido& pedido, const char* nome);
Lado lado(const Pedido& pedido);
Carta carta(const Pedido& valor, const char* nome);
// A list of cards of one of the sizes allowed.
std::vector<Carta> cartas(const Pedido& pedido, const char* nome,
                          std::initializer_list<std::size_t> tamanhos);

// The cards of a list field of any length up to `maximo`.
std::vector<Carta> listaDeCartas(const Pedido& pedido, const char* nome, std::size_t maximo);

nlohmann::ordered_json paraJson(const std::vector<Carta>& cartas);

} // namespace corvina::cli

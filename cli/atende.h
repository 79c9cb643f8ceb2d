#pragma once
// The answer to one request already read as JSON; throws PedidoInvalido for a bad one.

#include <nlohmann/json.hpp>

#include "cli/json_cartas.h"

namespace corvina::cli {

nlohmann::ordered_json atende(const Pedido& p);

} // namespace corvina::cli

#pragma once
// The requests on the game's own records: a hand's log reviewed against Forte, and a kept match
// or a log exported as JSON, so that a hand can be replayed elsewhere.

#include <nlohmann/json.hpp>

#include "cli/json_cartas.h"

namespace corvina::cli {

nlohmann::ordered_json revisa(const Pedido& p);
nlohmann::ordered_json partida(const Pedido& p);

} // namespace corvina::cli

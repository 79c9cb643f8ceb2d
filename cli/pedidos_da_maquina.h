#pragma once
// The requests that put the machine to work: one decision of a level (or of the seer, given the
// hidden cards), whole self-played matches, and the arena.

#include <nlohmann/json.hpp>

#include "cli/json_cartas.h"

namespace corvina::cli {

nlohmann::ordered_json decide(const Pedido& p);
nlohmann::ordered_json autojogo(const Pedido& p);
nlohmann::ordered_json arena(const Pedido& p);

} // namespace corvina::cli

// One line in, one line out: the request read within its limits, answered, and every fault
// turned into {"error": ...}.

#include "cli/atende.h"
#include "cli/pedidos.h"

namespace corvina::cli {

using json = nlohmann::ordered_json;

namespace {
// Whatever a text holds, the answer is valid JSON: bytes that are not UTF-8 become U+FFFD.
inline constexpr int kMaiorProfundidade = 16;
inline constexpr std::size_t kMaisChaves = 4096;

std::string escreve(const json& resposta) {
    return resposta.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string erro(const std::string& texto) {
    return escreve(json{{"error", texto}});
}
} // namespace

std::string responde(std::string_view linha) {
    if (linha.size() > kMaiorLinha)
        return erro("request too long: at most " + std::to_string(kMaiorLinha) + " bytes a line");
    Pedido pedido;
    // The parser's own limits are none: depth and keys are counted as it goes, and it stops
    // at the first excess.
    int profundidade = 0;
    std::size_t chaves = 0;
    const char* excesso = nullptr;
    const Pedido::parser_callback_t vigia = [&](int, Pedido::parse_event_t evento, Pedido&) {
        if (evento == Pedido::parse_event_t::object_start ||
            evento == Pedido::parse_event_t::array_start) {
            if (++profundidade > kMaiorProfundidade) excesso = "request nested too deeply";
        } else if (evento == Pedido::parse_event_t::object_end ||
                   evento == Pedido::parse_event_t::array_end) {
            --profundidade;
        } else if (evento == Pedido::parse_event_t::key && ++chaves > kMaisChaves) {
            excesso = "request with too many keys";
        }
        if (excesso) throw PedidoInvalido(excesso);
        return true;
    };
    try {
        pedido = Pedido::parse(linha, vigia);
    } catch (const PedidoInvalido& e) {
        return erro(e.what());
    } catch (const json::parse_error& e) {
        // Not the parser's own words: they quote the bytes read, which may not be UTF-8.
        return erro("invalid JSON at byte " + std::to_string(e.byte));
    } catch (const json::out_of_range&) {
        return erro("invalid JSON: a number beyond what a double holds");
    } catch (const std::exception&) {
        return erro("invalid JSON");
    }
    try {
        return escreve(atende(pedido));
    } catch (const PedidoInvalido& e) {
        return erro(e.what());
    } catch (const std::exception& e) {
        return erro(std::string("failed: ") + e.what());
    }
}

} // namespace corvina::cli

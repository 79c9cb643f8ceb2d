#include "cli/pedidos_de_revisao.h"

#include "core/estado_da_mao.h"
#include "core/partida_guardada.h"
#include "machine/niveis.h"
#include "machine/partida_em_texto.h"
#include "players/revisao_da_mao.h"

namespace corvina::cli {

namespace {
using json = nlohmann::ordered_json;

RegistroDaMao registroDo(const Pedido& p) {
    const auto r = leRegistro(texto(p, "log"));
    if (!r) throw PedidoInvalido("\"log\" is not a hand's log as the game keeps it");
    if (!reconstroi(*r, r->lances.size()))
        throw PedidoInvalido(
            "\"log\" doesn't replay: a card out of place or a deal of other packs");
    return *r;
}

json daMao(const RegistroDaMao& r) {
    json lances = json::array();
    for (const Lance& l : r.lances) {
        json j = {{"side", std::string(chaveDoLado(l.lado))},
                  {"from", l.origem == Origem::Monte ? "stock" : "pile"},
                  {"took", escreveCarta(l.tomada)}};
        if (l.completo()) {
            j["hand"] = paraJson(l.mao);
            j["slot"] = l.casa;
            j["threw"] = escreveCarta(l.descartada());
        }
        lances.push_back(std::move(j));
    }
    return {{"score", {r.pontosJog, r.pontosMac}},
            {"jog", paraJson(r.jog)},
            {"mac", paraJson(r.mac)},
            {"stock", paraJson(r.monte)},
            {"moves", std::move(lances)},
            {"end", std::string(chaveDoFim(r.fim))}};
}
} // namespace

json revisa(const Pedido& p) {
    const RegistroDaMao r = registroDo(p);
    json lances = json::array();
    int iguais = 0;
    for (std::size_t i = 0; i < r.lances.size(); ++i) {
        const Lance& l = r.lances[i];
        if (l.lado != Lado::Jog || !l.completo()) continue;
        const auto forte = descarteDoForte(r, i);
        if (!forte) throw PedidoInvalido("move " + std::to_string(i + 1) + " doesn't replay");
        iguais += *forte == l.descartada();
        lances.push_back({{"move", i + 1},
                          {"threw", escreveCarta(l.descartada())},
                          {"forte", escreveCarta(*forte)},
                          {"same", *forte == l.descartada()}});
    }
    const auto n = lances.size();
    return {{"throws", std::move(lances)}, {"same", iguais}, {"of", n}};
}

json partida(const Pedido& p) {
    if (p.contains("log")) return {{"hand", daMao(registroDo(p))}};
    const auto kept = lePartida(texto(p, "kept"));
    if (!kept) throw PedidoInvalido("\"kept\" is not a kept match as the game keeps it");
    if (const Conferida c = confere(*kept); !c.estado)
        throw PedidoInvalido("\"kept\" can't be played on: " + c.erro);
    json maos = json::array();
    for (const RegistroDaMao& r : kept->maos) maos.push_back(daMao(r));
    return {
        {"player", kept->nome},          {"level", std::string(dadosDoNivel(kept->nivel).chave)},
        {"fair", kept->justa},           {"score", {kept->pontosJog, kept->pontosMac}},
        {"hands", std::move(maos)},      {"current", daMao(kept->atual)},
        {"order", paraJson(kept->ordem)}};
}

} // namespace corvina::cli

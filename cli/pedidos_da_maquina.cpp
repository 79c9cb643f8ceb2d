#include "cli/pedidos_da_maquina.h"

#include <map>
#include <memory>

#include "cli/parada.h"
#include "core/mesa.h"
#include "core/visao_do_nivel.h"
#include "machine/arena.h"
#include "machine/autojogador.h"
#include "machine/niveis.h"
#include "machine/vidente.h"

namespace corvina::cli {

using json = nlohmann::ordered_json;

namespace {

inline constexpr double kMsDaBusca = 50; // the search's time a decision in the arena

TipoNivel tipoDoNivel(const Pedido& p, const char* nome) {
    const std::string chave = texto(p, nome);
    if (const auto n = nivelDaChave(chave)) return *n;
    throw PedidoInvalido(std::string("\"") + nome + "\" must be " + chavesDosNiveis());
}

// The seer, told the hidden cards: the other hand and the stock, position 1 first.
std::unique_ptr<Nivel> videnteDoPedido(const Pedido& p) {
    Mundo real;
    for (const Carta c : cartas(p, "opponentHand", {kCartasNaMao})) ++real.doOutro[tipoDaCarta(c)];
    for (const Carta c : listaDeCartas(p, "stockOrder", kCartasNoMonte))
        real.monte.push_back(static_cast<std::uint8_t>(tipoDaCarta(c)));
    if (static_cast<long>(real.monte.size()) != inteiro(p, "stock", 0, kCartasNoMonte))
        throw PedidoInvalido("\"stockOrder\" must hold \"stock\" cards");
    auto vidente = std::make_unique<Vidente>();
    vidente->ve(std::move(real));
    return vidente;
}

// A level, or an analysis player of the arena alone: "vidente", the seer that sees every card;
// "busca", the hint's search, thinking "ms" a decision (50 unless given).
Assento assentoDaArena(const Pedido& p, const char* nome) {
    const std::string quem = texto(p, nome);
    if (quem == "vidente") return Assento::vidente();
    if (quem == "busca")
        return Assento::busca(p.contains("ms") ? static_cast<double>(inteiro(p, "ms", 1, 60000))
                                               : kMsDaBusca);
    if (const auto n = nivelDaChave(quem)) return *n;
    std::string niveis = chavesDosNiveis();
    niveis.replace(niveis.rfind(" or "), 4, ", ");
    throw PedidoInvalido(std::string("\"") + nome + "\" must be " + niveis +
                         ", \"vidente\" or \"busca\"");
}

} // namespace

json decide(const Pedido& p) {
    const bool vidente = texto(p, "level") == "vidente";
    // A seed is taken and checked for the requests that carry one; no level draws on chance.
    if (p.contains("seed")) inteiro(p, "seed", 0, INT64_MAX);
    const std::unique_ptr<Nivel> nivel =
        vidente ? videnteDoPedido(p) : criaNivel(tipoDoNivel(p, "level"));
    VisaoDoNivel v;
    v.mao = cartas(p, "hand", {kCartasNaMao, kCasaCompra});
    const Pedido& pilha = campo(p, "pile");
    if (!pilha.is_null()) v.topo = carta(pilha, "pile");
    v.descartes = listaDeCartas(p, "discards", kCartasNoJogo);
    v.tomadasPeloOutro = listaDeCartas(p, "opponentTook", kCartasNoJogo);
    if (p.contains("opponentDiscards"))
        v.descartesDoOutro = listaDeCartas(p, "opponentDiscards", kCartasNoJogo);
    if (p.contains("took")) v.tomadasProprias = listaDeCartas(p, "took", kCartasNoJogo);
    v.monte = static_cast<int16>(inteiro(p, "stock", 0, kCartasNoMonte));
    std::map<Carta, int> vistas; // two packs: no card stands three times in one's own sight
    for (const Carta c : v.mao) ++vistas[c];
    if (v.topo) ++vistas[*v.topo];
    if (vidente) // and the seer's sight is the whole table
        for (const char* chave : {"opponentHand", "stockOrder"})
            for (const Carta c : listaDeCartas(p, chave, kCartasNoMonte)) ++vistas[c];
    for (const auto& [c, n] : vistas)
        if (n > 2) throw PedidoInvalido("\"" + escreveCarta(c) + "\" stands more than twice");
    if (v.mao.size() == kCartasNaMao) return {{"draw", nivel->pegaDescarte(v) ? "pile" : "stock"}};
    const std::string de = texto(p, "drew");
    if (de != "pile" && de != "stock")
        throw PedidoInvalido("\"drew\" must be \"pile\" or \"stock\"");
    int16 casa = nivel->descarte(v, de == "pile");
    if (casa < 1 || casa > kCasaCompra) casa = kCasaCompra; // as the table treats it
    return {{"discard", escreveCarta(v.mao[casa - 1])}};
}

json autojogo(const Pedido& p) {
    const auto semente = static_cast<std::uint64_t>(inteiro(p, "seed", 0, INT64_MAX));
    const long partidas = inteiro(p, "matches", 0, 1000000);
    const ResumoAutojogo r = autojoga(semente, partidas, sinalDeParada(), progresso("selfplay"));
    json resposta = {{"matches", r.partidas},
                     {"hands", r.maos},
                     {"handsWonJog", r.maosJog},
                     {"handsWonMac", r.maosMac},
                     {"handsNoWinner", r.maosSemVencedor},
                     {"exchanges", r.trocas},
                     {"matchesWonJog", r.partidasJog},
                     {"matchesWonMac", r.partidasMac},
                     {"seconds", r.segundos}};
    if (r.interrompido) resposta["interrupted"] = true;
    return resposta;
}

json arena(const Pedido& p) {
    PedidoArena a;
    a.a = assentoDaArena(p, "a");
    a.b = assentoDaArena(p, "b");
    a.pares = inteiro(p, "pairs", 1, 10000000);
    a.semente = static_cast<std::uint64_t>(inteiro(p, "seed", 0, INT64_MAX));
    if (p.contains("from")) a.primeiro = inteiro(p, "from", 0, INT64_MAX / 2);
    a.threads = p.contains("threads") ? static_cast<int>(inteiro(p, "threads", 1, 256)) : 1;
    const ResultadoArena r = corvina::arena(a, sinalDeParada(), progresso("arena"));
    json resposta = {
        {"handsA", r.maosA},       {"handsB", r.maosB},       {"noWinner", r.semVencedor},
        {"matchesA", r.partidasA}, {"matchesB", r.partidasB}, {"shareA", r.shareA},
        {"ciLow", r.ciLow},        {"ciHigh", r.ciHigh},      {"msMeanA", r.msMeanA},
        {"msP99A", r.msP99A},      {"msMeanB", r.msMeanB},    {"msP99B", r.msP99B},
        {"pairs", r.pares},        {"from", a.primeiro}};
    if (r.interrompida) resposta["interrupted"] = true;
    if (r.semFim > 0) resposta["endless"] = r.semFim; // among noWinner: stopped for their length
    if (r.threads < a.threads) resposta["threads"] = r.threads; // the system gave fewer
    return resposta;
}

} // namespace corvina::cli

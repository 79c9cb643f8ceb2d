#include "cli/pedidos.h"

#include <array>
#include <map>
#include <memory>
#include <set>

#include "cli/json_cartas.h"
#include "cli/parada.h"
#include "core/agrupa_mac.h"
#include "core/contagem.h"
#include "core/distribue.h"
#include "core/ordenacao.h"
#include "core/vale.h"
#include "core/vez_da_maquina.h"
#include "core/visao_do_nivel.h"
#include "core/vista_nula.h"
#include "machine/arena.h"
#include "machine/autojogador.h"
#include "machine/classico.h"
#include "machine/niveis.h"
#include "players/hall_da_fama.h"
#include "players/lista_de_jogadores.h"
#include "table/ordenar.h"
#include "update/campos.h"
#include "update/versao.h"

namespace corvina::cli {

using json = nlohmann::ordered_json;

const char* const kAjuda = R"(corvina-cli: study Corvina hands, one JSON request per line.

Reads one JSON object per line on standard input and writes one JSON object per line on
standard output, in the same order, until the end of input; exits 0 then. Cards are
"valor/naipe" strings: valor 1..13 (1 ace, 11 jack, 12 queen, 13 king), naipe 1..4
(1 hearts, 2 clubs, 3 diamonds, 4 spades). A hand is an array of cards in slot order.

Requests and answers:
  {"op":"count","side":"Jog"|"Mac","hand":[9 or 10],"short":false}
      -> {"count":N,"groups":[...]}   the count of the hand (short: seven orders, not
         fifteen) and the group list it leaves (three cards a trinca; "Jog" only)
  {"op":"contaGrupos","side":S,"hand":[9 or 10]}
      -> {"count":N,"groups":[...]}   one greedy search on the slots as given
  {"op":"vale","test":"grupo"|"dupla"|"duplaSeparada","side":S,"cards":[3 or 2]}
      -> {"result":true|false}
  {"op":"sort","fn":"ordenarEX"|"ordenarZtoA","alfa":A,"pinta":P,"side":S,"hand":[9 or 10]}
  {"op":"sort","fn":"ordenar2","modoOrdem":M,"hand":[9 or 10]}
      -> {"hand":[...]} (and "modoOrdem" after the call, for ordenar2)
  {"op":"agrupaMac","hand":[9]}
      -> {"hand":[...]}   the machine's hand laid out as at the end of a hand
  {"op":"turn","hand":[9],"pile":"v/n","stock":["v/n",...]}
      -> {"takes":"pile"|"stock"|"none","discard":SLOT,"hand":[9],"pile":"v/n"}
         one machine turn; "stock" lists the stock from position 1 up, so its last entry
         is drawn first; "none" when the stock was empty and the pile refused
  {"op":"deal","deck":[104 ids],"pontosJog":J,"pontosMac":M,"sorte":true|false}
      -> {"jog":[9],"mac":[9],"stock":[86],"sortePercent":N|null}
         the deal of that shuffle (ids 1..104, each once), with the exchange's luck as
         given; sortePercent is what the luck was asked, null if it was not
  {"op":"sortButton","hand":[9 or 10],"ordemAuto":N,"assistido":0|1,"avisoOrdenar":B}
      -> {"hand":[...],"ordemAuto":N,"caption":"...","status":"..."|null,"win":B,
          "messages":["..."]}   one press of the sort button; status null when the
         trinca line was left alone, messages the texts of the boxes shown
  {"op":"hallDaFama","jogadores":[{"nome":"..","saldo":S,"vitorias":V,"derrotas":D},...],
   "nomeJogador":".."}
      -> {"linhas":[{"nome":"..","vitorias":V,"derrotas":D,"saldo":S,"verde":B},...]}
         the rows of the hall of fame for players in list order (at most 50); a value may
         be a number or the text the store holds, and an empty or absent one counts 0
  {"op":"maiorVersion","local":"3.7.4","remota":"3.8.0"}
      -> {"maior":true|false}   whether the update server's version counts as newer
  {"op":"campo","texto":"..","delimitador":"!*!","n":N}
      -> {"campo":".."}   the Nth field (from 1) of a server's answer
  {"op":"selfplay","seed":S,"matches":N}
      -> {"matches":N,"hands":..,"handsWonJog":..,"handsWonMac":..,"handsNoWinner":..,
          "exchanges":..,"matchesWonJog":..,"matchesWonMac":..,"seconds":..}
         whole matches, both sides by the machine's rule; progress on standard error, and
         an interrupt answers for the matches played ("interrupted":true)
  {"op":"decide","level":"classico"|"esperto"|"forte","hand":[9 or 10],"pile":"v/n"|null,
   "drew":"pile"|"stock","discards":["v/n",...],"opponentTook":["v/n",...],"stock":N,"seed":S,
   "opponentDiscards":["v/n",...],"took":["v/n",...]}
      -> {"draw":"pile"|"stock"} with 9 cards; {"discard":"v/n"} with 10, the last of them
         the card just drawn ("drew" says from where). One decision of a level from what its
         seat may know; the last two keys are optional: which discards were the opponent's,
         and what this seat took from the pile
  {"op":"arena","a":L,"b":L,"pairs":N,"seed":S,"threads":T,"from":F}
      -> {"handsA":..,"handsB":..,"noWinner":..,"matchesA":..,"matchesB":..,"shareA":..,
          "ciLow":..,"ciHigh":..,"msMeanA":..,"msP99A":..,"msMeanB":..,"msP99B":..,
          "pairs":..,"from":..}
         levels a and b on mirrored deals: pairs F .. F+N-1 of seed S (F is 0 unless given),
         each shuffle played twice with the seats swapped and no exchange; matches are first
         to 4 in each seat's run of hands; shareA is of decided hands, with its 95%
         interval taken over pairs (the two hands of a pair share their deal); progress
         on standard error, and an interrupt answers for the pairs played

A request that is not valid JSON, names an unknown op, misses a field, or holds a bad card
or a hand of the wrong size is answered {"error":"..."}, and the next line is read.

Options: --help   this text.
)";

namespace {

void poeMao(Mesa& mesa, Lado lado, const std::vector<Carta>& cartas) {
    Mao mao = maoDe(mesa, lado);
    mao.qtd = static_cast<int16>(cartas.size());
    for (std::size_t i = 0; i < cartas.size(); ++i)
        poeCarta(mao.valor, mao.naipe, static_cast<int>(i + 1), cartas[i]);
}

std::vector<Carta> maoDaMesa(Mesa& mesa, Lado lado) {
    const Mao mao = maoDe(mesa, lado);
    std::vector<Carta> cartas;
    for (int i = 1; i <= mao.qtd; ++i) cartas.push_back(cartaNa(mao.valor, mao.naipe, i));
    return cartas;
}

json grupos(const Mesa& mesa) {
    std::vector<Carta> lista;
    for (int i = 1; i <= mesa.qtdGrupo; ++i)
        lista.push_back(cartaNa(mesa.grupoValor, mesa.grupoNaipe, i));
    return paraJson(lista);
}

json conta(const Pedido& p, bool soUmaOrdem) {
    const Lado l = lado(p);
    Mesa mesa;
    poeMao(mesa, l, cartas(p, "hand", {9, 10}));
    const int16 n =
        soUmaOrdem ? ContaGrupos(mesa, l) : TemQuantosGrupos(mesa, l, booleano(p, "short"));
    return {{"count", n}, {"groups", grupos(mesa)}};
}

json vale(const Pedido& p) {
    const std::string teste = texto(p, "test");
    const Lado l = lado(p);
    Mesa mesa;
    if (teste == "grupo") {
        poeMao(mesa, l, cartas(p, "cards", {3}));
        return {{"result", ValeGrupo(mesa, 1, 2, 3, l)}};
    }
    if (teste != "dupla" && teste != "duplaSeparada")
        throw PedidoInvalido("\"test\" must be \"grupo\", \"dupla\" or \"duplaSeparada\"");
    poeMao(mesa, l, cartas(p, "cards", {2}));
    return {
        {"result", teste == "dupla" ? ValeDupla(mesa, 1, 2, l) : ValeDuplaSeparada(mesa, 1, 2, l)}};
}

json ordena(const Pedido& p) {
    const std::string fn = texto(p, "fn");
    Mesa mesa;
    if (fn == "ordenar2") {
        mesa.modoOrdem = static_cast<int16>(inteiro(p, "modoOrdem", 0, 2));
        poeMao(mesa, Lado::Jog, cartas(p, "hand", {9, 10}));
        ordenar2(mesa);
        return {{"hand", paraJson(maoDaMesa(mesa, Lado::Jog))}, {"modoOrdem", mesa.modoOrdem}};
    }
    if (fn != "ordenarEX" && fn != "ordenarZtoA")
        throw PedidoInvalido("\"fn\" must be \"ordenarEX\", \"ordenarZtoA\" or \"ordenar2\"");
    const auto alfa = static_cast<int16>(inteiro(p, "alfa", INT16_MIN, INT16_MAX));
    const auto pinta = static_cast<int16>(inteiro(p, "pinta", INT16_MIN, INT16_MAX));
    const Lado l = lado(p);
    poeMao(mesa, l, cartas(p, "hand", {9, 10}));
    (fn == "ordenarEX" ? ordenarEX : ordenarZtoA)(mesa, alfa, pinta, l);
    return {{"hand", paraJson(maoDaMesa(mesa, l))}};
}

json agrupa(const Pedido& p) {
    Mesa mesa;
    poeMao(mesa, Lado::Mac, cartas(p, "hand", {9}));
    mesa.qtdJog = kCartasNaMao;
    agrupaMaoDaMaquina(mesa);
    return {{"hand", paraJson(maoDaMesa(mesa, Lado::Mac))}};
}

json vez(const Pedido& p) {
    const auto mao = cartas(p, "hand", {9});
    const Carta topo = carta(campo(p, "pile"), "pile");
    const Pedido& monte = campo(p, "stock");
    if (!monte.is_array() || monte.size() > kCartasNoMonte)
        throw PedidoInvalido("\"stock\" must be an array of at most 86 cards");

    AcasoSemente acaso(1);
    VistaNula vista;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    Mesa& m = jogo.mesa;
    poeMao(m, Lado::Mac, mao);
    m.qtdJog = kCartasNaMao;
    m.discarteValor = topo.valor;
    m.discarteNaipe = topo.naipe;
    jogo.modulo.qtdDescarte = 1;
    for (std::size_t i = 0; i < monte.size(); ++i)
        poeCarta(m.baralhoValor, m.baralhoNaipe, static_cast<int>(i + 1), carta(monte[i], "stock"));
    m.qtdBaralho = static_cast<int16>(monte.size());

    // What it will do, asked of the same level from the seat's view; then the turn itself.
    VisaoDoNivel visao = visaoDe(jogo, Lado::Mac);
    const bool pega = classico.pegaDescarte(visao);
    if (!pega && m.qtdBaralho == 0)
        return {{"takes", "none"},
                {"discard", 0},
                {"hand", paraJson(mao)},
                {"pile", escreveCarta(topo)}};
    visao.mao.push_back(pega ? topo : cartaNa(m.baralhoValor, m.baralhoNaipe, m.qtdBaralho));
    const int16 descarte = classico.descarte(visao, pega);
    ateOFim(macjoga(jogo));
    return {{"takes", pega ? "pile" : "stock"},
            {"discard", descarte},
            {"hand", paraJson(maoDaMesa(m, Lado::Mac))},
            {"pile", escreveCarta({m.discarteValor, m.discarteNaipe})}};
}

// The cards of a list field of any length up to `maximo`.
std::vector<Carta> listaDeCartas(const Pedido& p, const char* nome, std::size_t maximo) {
    const Pedido& v = campo(p, nome);
    if (!v.is_array() || v.size() > maximo)
        throw PedidoInvalido(std::string("\"") + nome + "\" must be an array of at most " +
                             std::to_string(maximo) + " cards");
    std::vector<Carta> lista;
    for (const Pedido& c : v) lista.push_back(carta(c, nome));
    return lista;
}

TipoNivel tipoDoNivel(const Pedido& p, const char* nome) {
    const std::string chave = texto(p, nome);
    if (const auto n = nivelDaChave(chave)) return *n;
    throw PedidoInvalido(std::string("\"") + nome +
                         "\" must be \"classico\", \"esperto\" or \"forte\"");
}

json decide(const Pedido& p) {
    const TipoNivel tipo = tipoDoNivel(p, "level");
    // A seed is taken and checked for the requests that carry one; no level draws on chance.
    if (p.contains("seed")) inteiro(p, "seed", 0, INT64_MAX);
    const std::unique_ptr<Nivel> nivel = criaNivel(tipo);
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

// Answers the shuffle's luck as the request says, whatever it is asked.
class SorteDada : public Acaso {
  public:
    explicit SorteDada(bool sim) : sim_(sim) {}
    void mexe() override {}
    double rnd() override { return sim_ ? 0.0 : 0.999999; }

  private:
    bool sim_;
};

json distribuicao(const Pedido& p) {
    const Pedido& baralho = campo(p, "deck");
    if (!baralho.is_array() || baralho.size() != kCartasNoJogo)
        throw PedidoInvalido("\"deck\" must hold the 104 ids");
    Embaralhado ids{};
    std::set<long> vistos;
    for (std::size_t i = 0; i < baralho.size(); ++i) {
        const Pedido& id = baralho[i];
        if (!id.is_number_integer() || id.get<long>() < 1 || id.get<long>() > kCartasNoJogo ||
            !vistos.insert(id.get<long>()).second)
            throw PedidoInvalido("\"deck\" must hold each id 1..104 once");
        ids[i + 1] = static_cast<int16>(id.get<long>());
    }
    SorteDada sorte(booleano(p, "sorte"));
    VistaNula vista;
    Classico classico;
    Jogo jogo(vista, sorte, classico);
    jogo.modulo.pontosJog = static_cast<int16>(inteiro(p, "pontosJog", 0, kPontosDaPartida - 1));
    jogo.modulo.pontosMac = static_cast<int16>(inteiro(p, "pontosMac", 0, kPontosDaPartida - 1));
    const Reparticao r = reparte(jogo, ids);
    std::vector<Carta> monte;
    for (int i = 1; i <= jogo.mesa.qtdBaralho; ++i)
        monte.push_back(cartaNa(jogo.mesa.baralhoValor, jogo.mesa.baralhoNaipe, i));
    return {{"jog", paraJson(maoDaMesa(jogo.mesa, Lado::Jog))},
            {"mac", paraJson(maoDaMesa(jogo.mesa, Lado::Mac))},
            {"stock", paraJson(monte)},
            {"sortePercent", r.sortePercent ? json(*r.sortePercent) : json(nullptr)}};
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
    a.a = tipoDoNivel(p, "a");
    a.b = tipoDoNivel(p, "b");
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
    if (r.threads < a.threads) resposta["threads"] = r.threads; // the system gave fewer
    return resposta;
}

// One press of the sort button on a hand; a win is reported with the hand as it won.
json botaoOrdenar(const Pedido& p) {
    const auto mao = cartas(p, "hand", {9, 10});
    AcasoSemente acaso(1);
    VistaNula vista;
    Classico classico;
    Jogo jogo(vista, acaso, classico);
    poeMao(jogo.mesa, Lado::Jog, mao);
    poeMao(jogo.mesa, Lado::Mac, {mao.begin(), mao.begin() + kCartasNaMao});
    jogo.mesa.ordemAuto = static_cast<int16>(inteiro(p, "ordemAuto", 0, 4));
    jogo.modulo.assistido = static_cast<int16>(inteiro(p, "assistido", 0, 1));
    jogo.modulo.avisoOrdenar = booleano(p, "avisoOrdenar");

    std::string legenda = legendaDaOrdem(jogo.mesa.ordemAuto);
    json status = nullptr, mensagens = json::array();
    bool venceu = false;
    std::vector<Carta> final;
    int16 ordemFinal = 0;
    vista.registra = true;
    vista.aoPerguntar = [&](const std::string& texto) {
        mensagens.push_back(texto);
        return kBotaoOk;
    };
    vista.aoAbrirJanela = [&](Janela janela) {
        if (janela != Janela::FrmPlacar || venceu) return;
        venceu = true;
        final = maoDaMesa(jogo.mesa, Lado::Jog);
        ordemFinal = jogo.mesa.ordemAuto;
    };
    Label4_Click(jogo);
    if (!venceu) {
        final = maoDaMesa(jogo.mesa, Lado::Jog);
        ordemFinal = jogo.mesa.ordemAuto;
    }
    for (const std::string& c : vista.chamadas) {
        if (venceu && c.rfind("preparaPlacar", 0) == 0) break; // what came after is the next hand
        if (c.rfind("legendaOrdenar ", 0) == 0) legenda = c.substr(15);
        if (c.rfind("mostraTrincas ", 0) == 0) status = c.substr(14);
    }
    return {{"hand", paraJson(final)}, {"ordemAuto", ordemFinal}, {"caption", legenda},
            {"status", status},        {"win", venceu},           {"messages", mensagens}};
}

// A value of the store: its text, or a number written as text.
std::string textoDoRegistro(const Pedido& jogador, const char* nome) {
    const auto it = jogador.find(nome);
    if (it == jogador.end() || it->is_null()) return "";
    if (it->is_string()) return it->get<std::string>();
    if (it->is_number_integer()) return it->dump();
    throw PedidoInvalido(std::string("\"") + nome + "\" must be a whole number or a text");
}

json hallDaFama(const Pedido& p) {
    const Pedido& lista = campo(p, "jogadores");
    if (!lista.is_array() || lista.size() > static_cast<std::size_t>(kMaxJogadores))
        throw PedidoInvalido("\"jogadores\" must be an array of at most 50 players");
    std::vector<JogadorDoHall> jogadores;
    for (const Pedido& j : lista) {
        if (!j.is_object()) throw PedidoInvalido("each player is an object");
        const std::string nome = texto(j, "nome");
        if (nome.empty()) throw PedidoInvalido("a player of the list has a name");
        jogadores.push_back({nome, textoDoRegistro(j, "saldo"), textoDoRegistro(j, "vitorias"),
                             textoDoRegistro(j, "derrotas")});
    }
    json linhas = json::array();
    for (const LinhaDoHall& l : montaHall(jogadores, texto(p, "nomeJogador"))) {
        if (!l.preenchida) break;
        linhas.push_back({{"nome", l.nome},
                          {"vitorias", std::stol(l.vitorias)},
                          {"derrotas", std::stol(l.derrotas)},
                          {"saldo", std::stol(l.saldo)},
                          {"verde", l.verde}});
    }
    return {{"linhas", linhas}};
}

json atende(const Pedido& p) {
    if (!p.is_object()) throw PedidoInvalido("a request is a JSON object");
    const std::string op = texto(p, "op");
    if (op == "count") return conta(p, false);
    if (op == "contaGrupos") return conta(p, true);
    if (op == "vale") return vale(p);
    if (op == "sort") return ordena(p);
    if (op == "agrupaMac") return agrupa(p);
    if (op == "turn") return vez(p);
    if (op == "decide") return decide(p);
    if (op == "arena") return arena(p);
    if (op == "deal") return distribuicao(p);
    if (op == "selfplay") return autojogo(p);
    if (op == "sortButton") return botaoOrdenar(p);
    if (op == "hallDaFama") return hallDaFama(p);
    if (op == "maiorVersion")
        return {{"maior", MaiorVersion(texto(p, "local"), texto(p, "remota"))}};
    if (op == "campo")
        return {{"campo", corvina::campo(texto(p, "texto"), texto(p, "delimitador"),
                                         static_cast<int>(inteiro(p, "n", 0, INT32_MAX)))}};
    throw PedidoInvalido("unknown op \"" + op + "\"");
}

} // namespace

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

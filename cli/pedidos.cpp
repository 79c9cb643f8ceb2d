#include "cli/atende.h"

#include <array>
#include <set>

#include "cli/json_cartas.h"
#include "cli/pedidos_da_maquina.h"
#include "cli/pedidos_de_revisao.h"
#include "core/agrupa_mac.h"
#include "core/contagem.h"
#include "core/distribue.h"
#include "core/ordenacao.h"
#include "core/vale.h"
#include "core/vez_da_maquina.h"
#include "core/visao_do_nivel.h"
#include "core/vista_nula.h"
#include "machine/classico.h"
#include "players/hall_da_fama.h"
#include "players/lista_de_jogadores.h"
#include "table/ordenar.h"
#include "update/campos.h"
#include "update/versao.h"

namespace corvina::cli {

using json = nlohmann::ordered_json;

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

} // namespace

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
    if (op == "revisa") return revisa(p);
    if (op == "partida") return partida(p);
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

} // namespace corvina::cli

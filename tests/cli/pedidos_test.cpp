#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>

#include "cli/pedidos.h"
#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/visao_do_nivel.h"
#include "core/vista_nula.h"
#include "machine/esperto.h"

namespace corvina::cli {
namespace {

using nlohmann::json;

struct Caso {
    const char* pedido;
    const char* resposta; // the whole answer, as JSON
};

class RespostaTest : public testing::TestWithParam<Caso> {};

// One answer per operation, and the faults of a request: the rules behind each operation have
// tests of their own.
TEST_P(RespostaTest, AnswersTheRequest) {
    EXPECT_EQ(json::parse(responde(GetParam().pedido)), json::parse(GetParam().resposta))
        << GetParam().pedido;
}

INSTANTIATE_TEST_SUITE_P(
    Pedidos, RespostaTest,
    testing::Values(
        Caso{
            R"({"op":"count","side":"Jog","hand":["7/1","7/2","7/3","4/2","5/2","6/2","12/4","13/4","1/4"],"short":false})",
            R"({"count":60,"groups":["4/2","5/2","6/2","7/2","7/3","7/1","1/4","12/4","13/4"]})"},
        Caso{
            R"({"op":"contaGrupos","side":"Jog","hand":["3/1","3/2","3/3","3/4","4/4","5/4","9/1","10/2","11/3"]})",
            R"({"count":40,"groups":["3/1","3/2","3/3","3/4","4/4","5/4"]})"},
        Caso{R"({"op":"vale","test":"grupo","side":"Mac","cards":["12/3","13/3","1/3"]})",
             R"({"result":true})"},
        Caso{R"({"op":"vale","test":"dupla","side":"Jog","cards":["1/2","13/2"]})",
             R"({"result":true})"},
        Caso{
            R"({"op":"sort","fn":"ordenarEX","alfa":1,"pinta":3,"side":"Jog","hand":["9/1","2/3","9/3","1/4","13/2","5/1","6/2","7/3","8/4"]})",
            R"({"hand":["2/3","7/3","9/3","1/4","8/4","5/1","9/1","6/2","13/2"]})"},
        Caso{
            R"({"op":"sort","fn":"ordenar2","modoOrdem":2,"hand":["9/3","2/1","9/1","1/4","13/2","5/1","6/2","7/3","8/4"]})",
            R"({"hand":["2/1","5/1","9/1","6/2","13/2","7/3","9/3","1/4","8/4"],"modoOrdem":1})"},
        Caso{
            R"({"op":"turn","hand":["1/1","3/2","5/3","7/4","9/1","11/2","13/3","2/4","6/1"],"pile":"10/4","stock":["8/3","1/2"]})",
            R"({"takes":"stock","discard":9,"hand":["1/1","3/2","5/3","7/4","9/1","11/2","13/3","2/4","1/2"],"pile":"6/1"})"},
        Caso{
            R"({"op":"turn","hand":["1/1","3/2","5/3","7/4","9/1","11/2","13/3","2/4","6/1"],"pile":"10/4","stock":[]})",
            R"({"takes":"none","discard":0,"hand":["1/1","3/2","5/3","7/4","9/1","11/2","13/3","2/4","6/1"],"pile":"10/4"})"},
        Caso{
            R"({"op":"sortButton","hand":["7/1","2/2","7/2","9/4","7/3","11/1","3/4","12/2","5/3"],"ordemAuto":1,"assistido":1,"avisoOrdenar":true})",
            R"({"hand":["7/3","7/1","7/2","5/3","3/4","9/4","11/1","2/2","12/2"],"ordemAuto":2,"caption":"Auto 2","status":"1 trinca","win":false,"messages":[]})"},
        // the update's text rules
        Caso{R"({"op":"maiorVersion","local":"3.7.4","remota":"3.8.0"})", R"({"maior":true})"},
        Caso{R"({"op":"campo","texto":"!*!Link!*!x!*!3.8.0!*!u!*!","delimitador":"!*!","n":3})",
             R"({"campo":"3.8.0"})"},
        // bad requests: an error that names the fault
        Caso{"not json", R"({"error":"invalid JSON at byte 2"})"},
        Caso{"{\"op\":\"\xff\xfe\"}", R"({"error":"invalid JSON at byte 8"})"},
        Caso{R"({"op":"count","x":1e400})",
             R"({"error":"invalid JSON: a number beyond what a double holds"})"},
        Caso{
            R"({"op":"sort","fn":"ordenarEX","alfa":18446744073709551611,"pinta":3,"side":"Jog","hand":["9/1","2/3","9/3","1/4","13/2","5/1","6/2","7/3","8/4"]})",
            R"({"error":"\"alfa\" must lie in -32768..32767"})"},
        // the hall of fame: by balance, then by list order; an empty text counts 0
        Caso{
            R"({"op":"hallDaFama","jogadores":[{"nome":"Ana","saldo":"-1","vitorias":"","derrotas":1},{"nome":"Bia","saldo":2,"vitorias":2,"derrotas":0},{"nome":"Caio"}],"nomeJogador":"Ana"})",
            R"({"linhas":[{"nome":"Bia","vitorias":2,"derrotas":0,"saldo":2,"verde":false},{"nome":"Caio","vitorias":0,"derrotas":0,"saldo":0,"verde":false},{"nome":"Ana","vitorias":0,"derrotas":1,"saldo":-1,"verde":true}]})"},
        Caso{R"({"op":"hallDaFama","jogadores":[{"nome":""}],"nomeJogador":""})",
             R"({"error":"a player of the list has a name"})"},
        Caso{R"({"op":"hallDaFama","jogadores":[{"nome":"A","saldo":1.5}],"nomeJogador":""})",
             R"({"error":"\"saldo\" must be a whole number or a text"})"},
        Caso{R"({"op":"fly"})", R"({"error":"unknown op \"fly\""})"},
        Caso{
            R"({"op":"decide","level":"esperto","hand":["7/1","7/2","7/3","1/4","2/4","3/4","5/3","6/3","4/3","13/2"],"pile":null,"drew":"stock","discards":[],"opponentTook":[],"stock":40})",
            R"({"discard":"13/2"})"},
        Caso{
            R"({"op":"decide","level":"forte","hand":["7/1","7/2","7/3","1/4","2/4","3/4","5/3","6/3","11/1"],"pile":"4/3","discards":["4/3"],"opponentTook":[],"stock":40})",
            R"({"draw":"pile"})"},
        Caso{R"({"op":"decide","level":"mestre","hand":[],"pile":null})",
             R"({"error":"\"level\" must be \"classico\", \"esperto\" or \"forte\""})"},
        Caso{R"({"op":"arena","a":"forte","b":"classico","pairs":0,"seed":1})",
             R"({"error":"\"pairs\" must lie in 1..10000000"})"},
        Caso{R"({"op":"arena","a":"esperto","b":"classico","pairs":3,"seed":7,"threads":0})",
             R"({"error":"\"threads\" must lie in 1..256"})"},
        Caso{
            R"({"op":"arena","a":"mestre","b":"classico","pairs":3,"seed":7})",
            R"({"error":"\"a\" must be \"classico\", \"esperto\", \"forte\", \"vidente\" or \"busca\""})"},
        Caso{R"({"op":"arena","a":"busca","ms":0,"b":"classico","pairs":3,"seed":7})",
             R"({"error":"\"ms\" must lie in 1..60000"})"},
        Caso{
            R"({"op":"decide","level":"classico","hand":["1/1","1/1","1/1","2/2","3/3","4/4","5/1","6/2","7/3"],"pile":null,"discards":[],"opponentTook":[],"stock":5})",
            R"({"error":"\"1/1\" stands more than twice"})"},
        Caso{R"([1,2])", R"({"error":"a request is a JSON object"})"},
        Caso{R"({"op":"count","side":"Jog","short":false})",
             R"({"error":"missing field \"hand\""})"},
        Caso{R"({"op":"count","side":"jog","hand":[],"short":false})",
             R"({"error":"\"side\" must be \"Jog\" or \"Mac\""})"},
        Caso{R"({"op":"count","side":"Jog","hand":["7/1"],"short":false})",
             R"({"error":"\"hand\" must hold 9 or 10 cards"})"},
        Caso{R"({"op":"vale","test":"grupo","side":"Jog","cards":["14/1","1/1","2/1"]})",
             R"({"error":"bad card \"14/1\" in \"cards\": value 1..13 / suit 1..4"})"},
        Caso{R"({"op":"deal","deck":[1,2,3],"pontosJog":0,"pontosMac":0,"sorte":true})",
             R"({"error":"\"deck\" must hold the 104 ids"})"},
        Caso{R"({"op":"selfplay","seed":-1,"matches":1})",
             R"({"error":"\"seed\" must lie in 0..9223372036854775807"})"}));

json deckDe(int primeiro) {
    json deck = json::array();
    for (int i = 0; i < 104; ++i) deck.push_back((primeiro + i - 1) % 104 + 1);
    return deck;
}

TEST(Distribuicao, DealsPositionsInOrderAndReportsTheLuckAsked) {
    // ids 40..52 are spades 1..13: the player's run gives way to a weaker machine's hand.
    json pedido = {
        {"op", "deal"}, {"deck", deckDe(40)}, {"pontosJog", 3}, {"pontosMac", 2}, {"sorte", true}};
    const json r = json::parse(responde(pedido.dump()));
    ASSERT_FALSE(r.contains("error")) << r.dump();
    EXPECT_EQ(r["sortePercent"], 70);
    EXPECT_EQ(r["mac"][0], "1/4") << "the better hand went to the machine";
    EXPECT_EQ(r["stock"].size(), 86u);
    EXPECT_EQ(r["stock"][0], "6/1"); // position 19: id 58, the second six of hearts

    pedido["sorte"] = false;
    const json s = json::parse(responde(pedido.dump()));
    EXPECT_EQ(s["jog"][0], "1/4");
    pedido["pontosJog"] = 1;
    pedido["pontosMac"] = 2;
    EXPECT_TRUE(json::parse(responde(pedido.dump()))["sortePercent"].is_null());

    json dobrado = pedido;
    dobrado["deck"][5] = dobrado["deck"][4];
    EXPECT_EQ(json::parse(responde(dobrado.dump()))["error"],
              "\"deck\" must hold each id 1..104 once");
}

// Clássico decides from its seat's view exactly what the machine's turn does on the table.
TEST(Decide, ClassicoFromItsViewIsTheMachinesTurn) {
    std::mt19937 g(2026);
    std::vector<std::string> ids;
    for (int copia = 0; copia < 2; ++copia)
        for (int n = 1; n <= 4; ++n)
            for (int v = 1; v <= 13; ++v)
                ids.push_back(std::to_string(v) + "/" + std::to_string(n));
    int pegas = 0;
    for (int caso = 0; caso < 300; ++caso) {
        std::shuffle(ids.begin(), ids.end(), g);
        const json mao = std::vector<std::string>(ids.begin(), ids.begin() + 9);
        const json monte = std::vector<std::string>(ids.begin() + 10, ids.begin() + 30);
        const json vez = json::parse(responde(
            json{{"op", "turn"}, {"hand", mao}, {"pile", ids[9]}, {"stock", monte}}.dump()));
        json pedido = {{"op", "decide"}, {"level", "classico"},  {"hand", mao},
                       {"pile", ids[9]}, {"discards", {ids[9]}}, {"opponentTook", json::array()},
                       {"stock", 20},    {"seed", caso}};
        const json compra = json::parse(responde(pedido.dump()));
        ASSERT_EQ(compra["draw"], vez["takes"]) << pedido.dump();
        const bool pega = vez["takes"] == "pile";
        pegas += pega;
        pedido["hand"].push_back(pega ? json(ids[9]) : monte.back());
        pedido["drew"] = vez["takes"];
        if (pega) pedido["pile"] = nullptr;
        ASSERT_EQ(json::parse(responde(pedido.dump()))["discard"], vez["pile"]) << pedido.dump();
    }
    EXPECT_GT(pegas, 0) << "both ways of the turn were met";
    EXPECT_LT(pegas, 300);
}

TEST(Limites, OversizedRequestsAreRefusedWithTheirReason) {
    std::string chaves = R"({"op":"count")";
    for (int i = 0; i < 60000; ++i) chaves += ",\"k" + std::to_string(i) + "\":0";
    chaves += "}";
    const struct {
        std::string pedido, erro;
    } casos[] = {
        {chaves, "request with too many keys"},
        {std::string(17, '[') + std::string(17, ']'), "request nested too deeply"},
        {std::string(1024 * 1024 + 1, ' '), "request too long: at most 1048576 bytes a line"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(json::parse(responde(c.pedido))["error"], c.erro) << c.pedido.substr(0, 40);
    // Within the limits, a request far wider than any real one is still read.
    EXPECT_EQ(json::parse(responde(std::string(16, '[') + std::string(16, ']')))["error"],
              "a request is a JSON object");
}

json comoLista(const std::vector<Carta>& cartas) {
    json l = json::array();
    for (const Carta c : cartas) l.push_back(escreveCarta(c));
    return l;
}

// Over seeded hands played at random, "revisa" on a hand's log answers for each of the player's
// throws what "decide" answers for Forte on the view the player had at the table.
TEST(Revisa, AgreesWithDecideOnTheViewAtTheTable) {
    AcasoSemente acaso(5);
    VistaNula vista;
    Esperto esperto;
    Jogo jogo(vista, acaso, esperto);
    jogo.modulo.nomeJogador = "Ana";
    Form_Activate(jogo);
    std::mt19937 g(5);
    std::vector<json> pedidos; // "decide" at each throw of the hand under way
    std::size_t conferidos = 0;
    const auto confere = [&] {
        const json r = json::parse(
            responde(json{{"op", "revisa"}, {"log", escreveRegistro(jogo.maos.back())}}.dump()));
        ASSERT_EQ(r["throws"].size(), pedidos.size()) << r;
        for (std::size_t i = 0; i < pedidos.size(); ++i)
            EXPECT_EQ(r["throws"][i]["forte"], json::parse(responde(pedidos[i].dump()))["discard"]);
        conferidos += pedidos.size();
        pedidos.clear();
    };
    while (jogo.maos.size() < 3 && !HasFailure()) {
        const std::size_t maos = jogo.maos.size();
        const bool daPilha = jogo.modulo.qtdDescarte > 0 && g() % 3 == 0;
        ateOFim(daPilha ? Discartado_Click(jogo) : costas2_Click(jogo));
        if (jogo.maos.size() == maos) {
            const VisaoDoNivel v = visaoDe(jogo, Lado::Jog);
            pedidos.push_back({{"op", "decide"},
                               {"level", "forte"},
                               {"hand", comoLista(v.mao)},
                               {"pile", v.topo ? json(escreveCarta(*v.topo)) : json(nullptr)},
                               {"drew", daPilha ? "pile" : "stock"},
                               {"discards", comoLista(v.descartes)},
                               {"opponentTook", comoLista(v.tomadasPeloOutro)},
                               {"opponentDiscards", comoLista(v.descartesDoOutro)},
                               {"took", comoLista(v.tomadasProprias)},
                               {"stock", v.monte}});
            ateOFim(descartaJog(jogo, static_cast<int16>(g() % kCasaCompra + 1)));
        }
        if (jogo.maos.size() != maos) confere();
    }
    EXPECT_GT(conferidos, 30U);
}

} // namespace
} // namespace corvina::cli

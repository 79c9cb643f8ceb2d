// corvina-cli under a seeded stream of broken requests: every line gets exactly one answer,
// always a JSON object, and nothing escapes as an exception.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "cli/pedidos.h"

namespace corvina::cli {
namespace {

const char* const kSementes[] = {
    R"({"op":"count","side":"Jog","hand":["7/1","7/2","7/3","4/2","5/2","6/2","12/4","13/4","1/4"],"short":false})",
    R"({"op":"sort","fn":"ordenarEX","alfa":1,"pinta":3,"side":"Jog","hand":["9/1","2/3","9/3","1/4","13/2","5/1","6/2","7/3","8/4"]})",
    R"({"op":"turn","hand":["1/1","3/2","5/3","7/4","9/1","11/2","13/3","2/4","6/1"],"pile":"10/4","stock":["8/3","1/2"]})",
    R"({"op":"sortButton","hand":["7/1","2/2","7/2","9/4","7/3","11/1","3/4","12/2","5/3"],"ordemAuto":1,"assistido":1,"avisoOrdenar":true})",
    R"({"op":"hallDaFama","jogadores":[{"nome":"Ana","saldo":"-1"},{"nome":"Bia","saldo":2}],"nomeJogador":"Ana"})",
    R"({"op":"deal","deck":[1,2,3],"pontosJog":0,"pontosMac":0,"sorte":true})",
    R"({"op":"vale","test":"grupo","side":"Mac","cards":["12/3","13/3","1/3"]})",
};
const char* const kEnxertos[] = {"1e400",
                                 "18446744073709551615",
                                 "-9223372036854775809",
                                 "\xff",
                                 "\xc3",
                                 "\xed\xa0\x80",
                                 "\"\\ud800\"",
                                 "null",
                                 "[[[[[[[[[[",
                                 "}",
                                 "\"7/1\"",
                                 "-0",
                                 "1.5",
                                 "\"\\u0000\""};

std::string mutacao(std::mt19937_64& g) {
    std::string s = kSementes[g() % std::size(kSementes)];
    const int passos = 1 + static_cast<int>(g() % 4);
    for (int i = 0; i < passos && !s.empty(); ++i) {
        const std::size_t at = g() % s.size();
        switch (g() % 4) {
        case 0: // a byte changed, any byte
            s[at] = static_cast<char>(g() & 0xFF);
            break;
        case 1: // cut short
            s.resize(at);
            break;
        case 2: // a value that was never meant to be there
            s.insert(at, kEnxertos[g() % std::size(kEnxertos)]);
            break;
        default: // a stretch removed
            s.erase(at, g() % 12);
            break;
        }
    }
    return s;
}

TEST(CliFuzz, EveryLineGetsOneJsonObjectAndNothingThrows) {
    std::mt19937_64 g(20261123);
    int erros = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string pedido = mutacao(g);
        std::string resposta;
        ASSERT_NO_THROW(resposta = responde(pedido)) << pedido;
        EXPECT_EQ(resposta.find('\n'), std::string::npos) << "one line per answer";
        const auto lida = nlohmann::json::parse(resposta, nullptr, false);
        ASSERT_TRUE(lida.is_object()) << pedido << "\n" << resposta;
        erros += lida.contains("error");
    }
    EXPECT_GT(erros, 10000) << "most mutations are refused";
}

} // namespace
} // namespace corvina::cli

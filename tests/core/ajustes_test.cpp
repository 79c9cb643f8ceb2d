#include <gtest/gtest.h>

#include "apoio/jogo_de_teste.h"
#include "core/ajustes.h"
#include "core/armazem_memoria.h"
#include "core/ativacao.h"
#include "core/caminhos.h"

namespace corvina {
namespace {

TEST(NumeroDoTexto, TakesTheNumberAtTheStart) {
    const std::pair<const char*, long> casos[] = {{"12", 12},    {"-1", -1},  {"+3", 3},
                                                  {"7 wins", 7}, {"", 0},     {"abc", 0},
                                                  {"-", 0},      {" 42", 42}, {"3.9", 3}};
    for (const auto& [texto, valor] : casos) EXPECT_EQ(numeroDoTexto(texto), valor) << texto;
    EXPECT_GT(numeroDoTexto(std::string(400, '9')), 0) << "a text too long to hold doesn't wrap";
}

TEST(BooleanoDoTexto, TrueFalseAndNumbers) {
    const std::pair<const char*, bool> casos[] = {{"True", true}, {"TRUE", true},   {"1", true},
                                                  {"-1", true},   {"False", false}, {"0", false},
                                                  {"", false},    {"yes", false},   {"1x", false}};
    for (const auto& [texto, valor] : casos) EXPECT_EQ(booleanoDoTexto(texto), valor) << texto;
}

TEST(ArmazemMemoria, EmptyReadsAsDefaultAndTrueReadsAsOne) {
    ArmazemMemoria a;
    EXPECT_EQ(a.le("K", "v", "4"), "4");
    EXPECT_EQ(a.le("K", "v", "tRuE"), "1");
    a.grava("K", "v", "");
    EXPECT_EQ(a.le("K", "v", "4"), "4");
    a.grava("K", "v", "0");
    EXPECT_EQ(a.le("K", "v", "4"), "0");
}

TEST(ArmazemMemoria, KeysAndNamesIgnoreCase) {
    ArmazemMemoria a;
    a.grava(chaveBase(), "TipoCarta", "7");
    EXPECT_EQ(a.le("SOFTWARE\\lunaris\\corvina", "Tipocarta", "4"), "7");
    a.grava(chaveJogador("AÇÃO"), "Vitorias", "2");
    EXPECT_EQ(a.le(chaveJogador("ação"), "vitorias", "0"), "2");
}

TEST(ArmazemMemoria, OddNamesAreTheirOwnKeys) {
    ArmazemMemoria a;
    const char* nomes[] = {"a/b", "..\\x", "Ação", "[General]", "a\\Vitorias", "=", ""};
    int n = 0;
    for (const char* nome : nomes) a.grava(chaveJogador(nome), "Vitorias", std::to_string(++n));
    n = 0;
    for (const char* nome : nomes)
        EXPECT_EQ(a.le(chaveJogador(nome), "Vitorias", "0"), std::to_string(++n)) << nome;
    EXPECT_EQ(a.le(chaveJogador("a"), "Vitorias", "0"), "0");
    EXPECT_EQ(a.le(chaveBase(), "Vitorias", "0"), "0");
}

TEST(Caminhos, NulsAndSeparators) {
    EXPECT_EQ(TiraNulo(std::string("abc\0def", 7)), "abc");
    EXPECT_EQ(TiraNulo("abc"), "abc");
    EXPECT_EQ(CaminhoCurto("/usr/share/Meus Jogos/musica.mid"), "/usr/share/Meus Jogos/musica.mid");
    EXPECT_EQ(semSeparadorFinal("/opt/corvina/"), "/opt/corvina");
    EXPECT_EQ(semSeparadorFinal("/"), "/");
}

TEST(LeConfig, DefaultsAndStoredValues) {
    teste::JogoDeTeste t;
    leConfig(t.jogo);
    EXPECT_EQ(t.jogo.modulo.tipoCarta, 4);
    EXPECT_EQ(t.jogo.modulo.velocidade, 6);
    EXPECT_TRUE(t.jogo.modulo.tocarSom);
    EXPECT_FALSE(t.jogo.modulo.tocarMusica);
    EXPECT_FALSE(t.jogo.modulo.avisoOrdenar);

    ArmazemMemoria& a = t.vista.armazem;
    a.grava(chaveBase(), "TipoCarta", "0");
    a.grava(chaveBase(), "AnimarCartas", "False");
    a.grava(chaveBase(), "TocarSom", "talvez");
    leConfig(t.jogo);
    EXPECT_EQ(t.jogo.modulo.tipoCarta, 1) << "a stored 0 gives back 1";
    EXPECT_TRUE(t.jogo.modulo.animarCartas) << "stored, never restored";
    EXPECT_FALSE(t.jogo.modulo.tocarSom) << "a text that isn't a Boolean leaves it off";
}

} // namespace
} // namespace corvina

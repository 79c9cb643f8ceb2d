#include <gtest/gtest.h>

#include "apoio/jogo_de_teste.h"
#include "core/ajustes.h"
#include "core/armazem_memoria.h"
#include "core/ativacao.h"

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
    for (const auto& [guardado, verso] :
         {std::pair{"99999999999", 8}, {"65539", 8}, {"-5", 1}, {"7", 7}}) {
        a.grava(chaveBase(), "TipoCarta", guardado);
        leConfig(t.jogo);
        EXPECT_EQ(t.jogo.modulo.tipoCarta, verso) << guardado << ": one of the eight backs";
    }
    EXPECT_TRUE(t.jogo.modulo.animarCartas) << "stored, never restored";
    EXPECT_FALSE(t.jogo.modulo.tocarSom) << "a text that isn't a Boolean leaves it off";

    // Speeds the options window can't set would make a flight last minutes.
    for (const char* v : {"0", "17", "32767", "-3"}) {
        a.grava(chaveBase(), "Velocidade", v);
        leConfig(t.jogo);
        EXPECT_EQ(t.jogo.modulo.velocidade, 6) << v;
    }
    a.grava(chaveBase(), "Velocidade", "16");
    leConfig(t.jogo);
    EXPECT_EQ(t.jogo.modulo.velocidade, 16);
}

} // namespace
} // namespace corvina

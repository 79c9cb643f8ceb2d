// A kept match that can't be played on, however it came to be so, is set aside whole in the
// database and the player starts anew; nothing else of the game's data moves.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>

#include "apoio/sql_bruto.h"
#include "core/ativacao.h"
#include "core/compra.h"
#include "core/vista_nula.h"
#include "machine/autojogador.h"
#include "machine/esperto.h"
#include "machine/partida_em_texto.h"
#include "players/partida_para_retomar.h"

namespace corvina {
namespace {

// Ana's match some turns in, the player holding ten cards.
std::string partidaDeAna() {
    AcasoSemente acaso(11);
    VistaNula vista;
    Esperto esperto;
    Jogo jogo(vista, acaso, esperto);
    jogo.modulo.nomeJogador = "Ana";
    Form_Activate(jogo);
    for (int i = 0; i < 6; ++i) jogaPeloJogador(jogo, esperto);
    ateOFim(costas2_Click(jogo));
    return escrevePartida(guardaDe(jogo));
}

std::string troca(std::string t, const std::string& de, const std::string& para) {
    const auto i = t.find(de);
    EXPECT_NE(i, std::string::npos) << de;
    return i == std::string::npos ? t : t.replace(i, de.size(), para);
}

// The first card of a line that starts with `rotulo`.
std::string primeiraDe(const std::string& t, const std::string& rotulo) {
    const auto i = t.find("\n" + rotulo + " ") + rotulo.size() + 2;
    return t.substr(i, t.find(' ', i) - i);
}

TEST(PartidaGuardada, WhatCantBePlayedOnIsSetAsideAndNothingElseMoves) {
    const std::string boa = partidaDeAna();
    const std::string jog = primeiraDe(boa, "jog"), mac = primeiraDe(boa, "mac");
    const struct {
        const char* caso;
        std::function<std::string(const std::string&)> estraga;
    } casos[] = {
        {"cut short", [](const std::string& t) { return t.substr(0, t.size() / 2); }},
        {"a card out of range", [&](const std::string& t) { return troca(t, jog, "14/1"); }},
        {"a card three times",
         [&](const std::string& t) { return troca(t, "jog " + jog, "jog " + mac); }},
        {"a score the hands don't make",
         [](const std::string& t) { return troca(t, "placar 0 0", "placar 2 1"); }},
        {"a huge count", [](const std::string& t) { return troca(t, "maos 0", "maos 99"); }},
        {"ten megabytes", [](const std::string& t) { return t + std::string(10 << 20, 'x'); }},
        {"another player's",
         [](const std::string& t) { return troca(t, "jogador Ana", "jogador Bia"); }},
        {"another version",
         [](const std::string& t) { return troca(t, "corvina-partida 1", "corvina-partida 2"); }},
        {"the player's cards not the hand's",
         [&](const std::string& t) { return troca(t, "ordem " + jog, "ordem " + mac); }},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.caso);
        QTemporaryDir pasta;
        const std::string db = pasta.filePath("corvina.db").toStdString();
        const std::string estragada = c.estraga(boa);
        {
            BancoDoJogo banco(db);
            banco.registraPartida("Ana", {1, TipoNivel::Forte, true, true, 4, 1}, std::nullopt);
            ASSERT_TRUE(banco.guardaPartida("Ana", estragada));
            ASSERT_TRUE(banco.guardaPartida("Bia", boa));
            EXPECT_FALSE(partidaParaRetomar(banco, "ana"));
            EXPECT_FALSE(partidaParaRetomar(banco, "Ana")) << "offered once, then gone";
            EXPECT_EQ(banco.historico("Ana").partidas.size(), 1U);
        }
        EXPECT_EQ(teste::sqlBruto(db, "SELECT texto FROM partidas_postas_de_lado"), estragada);
        EXPECT_EQ(
            teste::sqlBruto(db, "SELECT texto FROM partidas_guardadas WHERE jogador = ?", "bia"),
            boa);
    }
    QTemporaryDir pasta;
    BancoDoJogo banco(pasta.filePath("corvina.db").toStdString());
    banco.guardaPartida("Ana", boa);
    const auto lida = partidaParaRetomar(banco, "ANA");
    ASSERT_TRUE(lida);
    EXPECT_EQ(escrevePartida(*lida), boa);
}

} // namespace
} // namespace corvina

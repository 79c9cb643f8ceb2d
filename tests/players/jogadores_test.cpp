// The players' list, the choose-player and new-player windows as plain state, and the hall
// of fame, over a store in memory.

#include <gtest/gtest.h>

#include "core/ajustes.h"
#include "core/armazem_memoria.h"
#include "players/banco_do_jogo.h"
#include "players/dobra_nome.h"
#include "players/escolha_de_jogador.h"
#include "players/escolha_de_nivel.h"
#include "players/hall_da_fama.h"
#include "players/lista_de_jogadores.h"
#include "players/novo_jogador.h"

namespace corvina {
namespace {

struct Jogadores : testing::Test {
    ArmazemMemoria a;
    BancoDoJogo banco{":memory:"};
    Module1 m;
    std::vector<std::string> acontecimentos;
    std::function<void()> aoAbrirNovo = [] {};
    bool respostaExcluir = true;

    void lista(std::initializer_list<const char*> nomes) {
        int n = 1;
        for (const char* nome : nomes) a.grava(chaveBase(), ajuste::jogador(n++), nome);
    }
    std::vector<std::string> listaGuardada() { return leListaDeJogadores(a); }
    void registro(const std::string& nome, const char* v, const char* d, const char* s) {
        a.grava(chaveJogador(nome), "Vitorias", v);
        a.grava(chaveJogador(nome), "Derrotas", d);
        a.grava(chaveJogador(nome), "Saldo", s);
    }
    EscolhaDeJogador janela() {
        return EscolhaDeJogador(m, a, banco,
                                {[this](const std::string& p) {
                                     acontecimentos.push_back("pergunta " + p);
                                     return respostaExcluir;
                                 },
                                 [this] {
                                     acontecimentos.push_back("novo jogador");
                                     aoAbrirNovo();
                                 },
                                 [this] { acontecimentos.push_back("iniciaMusica"); },
                                 [this] { acontecimentos.push_back("paraMusica"); }});
    }
};

TEST_F(Jogadores, TheListEndsAtItsFirstGapAndHoldsFifty) {
    lista({"Ana", "", "Caio"});
    EXPECT_EQ(listaGuardada(), std::vector<std::string>{"Ana"});
    for (int n = 1; n <= 51; ++n)
        a.grava(chaveBase(), ajuste::jogador(n), std::string("J").append(std::to_string(n)));
    EXPECT_EQ(listaGuardada().size(), 50u);
}

TEST_F(Jogadores, AFirstStartAsksForAPlayerAndPlaysTheMusic) {
    aoAbrirNovo = [this] {
        a.grava(chaveBase(), ajuste::jogador(1), "Ana");
        m.nomeJogador = "Ana";
    };
    EscolhaDeJogador j = janela();
    j.carrega(false);
    EXPECT_EQ(j.selecionada(), -1);
    j.adiciona("Ana");
    j.primeiraAtivacao();
    EXPECT_EQ(acontecimentos, (std::vector<std::string>{"novo jogador", "iniciaMusica"}));
    EXPECT_EQ(j.textoSelecionado(), "Ana");
    j.jogar();
    EXPECT_EQ(m.nomeJogador, "Ana");
    EXPECT_EQ(acontecimentos.back(), "paraMusica");
    EXPECT_EQ(a.le(chaveJogador("Ana"), "Assistido", ""), "0") << "written at Jogar";
}

TEST_F(Jogadores, TheSelectionShowsTheRecordAndTheLastPlayerIsPreselected) {
    lista({"Ana", "Bia", "Caio"});
    registro("Bia", "7", "3", "4");
    a.grava(chaveJogador("Bia"), "Assistido", "1");
    a.grava(chaveBase(), "UltimoJogador", "Bia");
    EscolhaDeJogador j = janela();
    j.carrega(false);
    EXPECT_EQ(j.textoSelecionado(), "Ana") << "the first entry at loading";
    j.primeiraAtivacao();
    EXPECT_EQ(j.textoSelecionado(), "Bia");
    EXPECT_EQ(j.jogos, "10");
    EXPECT_EQ(j.vitorias, "7");
    EXPECT_EQ(j.saldo, "4");
    EXPECT_EQ(j.legendaExcluir, "Excluir Bia");
    EXPECT_TRUE(j.assistido());
    EXPECT_FALSE(j.seleciona("bia")) << "selection is exact";
    EXPECT_EQ(j.textoSelecionado(), "Bia");
    j.alternaAssistido();
    j.jogar();
    EXPECT_EQ(m.assistido, 0);
    EXPECT_EQ(a.le(chaveJogador("Bia"), "Assistido", ""), "0");
    EXPECT_FALSE(m.nomeCancelado);
}

TEST_F(Jogadores, CancelKeepsTheModeButTheNameFollowsTheSelection) {
    lista({"Ana", "Bia"});
    m.nomeJogador = "Ana";
    m.assistido = 1;
    EscolhaDeJogador j = janela();
    j.carrega(false);
    j.cancelar();
    EXPECT_FALSE(j.fechada()) << "cancel works only when opened from the toolbar";
    j.carrega(true);
    j.selecionaLinha(1);
    j.cancelar();
    EXPECT_TRUE(j.fechada());
    EXPECT_TRUE(m.nomeCancelado);
    EXPECT_EQ(m.nomeJogador, "Bia");
    EXPECT_EQ(m.assistido, 1);
}

// Each player's opponent and deal: kept under that player's key, brought to the table by the
// choice of player, and a level's fair deal that Clássico alone may turn off.
TEST_F(Jogadores, EachPlayerMeetsTheLevelAndDealChosen) {
    lista({"Ana", "Bia"});
    m.nomeJogador = "Ana";
    EscolhaDeNivel n(m, a);
    EXPECT_EQ(n.nivel(), TipoNivel::Classico);
    EXPECT_FALSE(n.justa());
    n.alternaJusta();
    n.escolhe(TipoNivel::Forte);
    EXPECT_TRUE(n.justa());
    EXPECT_FALSE(n.justaEscolhivel()) << "Forte never exchanges: nothing to turn off";
    n.alternaJusta(); // no effect while Forte is chosen
    n.confirma();
    EXPECT_EQ(a.le(chaveJogador("Ana"), "Nivel", ""), "forte");
    EXPECT_EQ(a.le(chaveJogador("Ana"), "DistribuicaoJusta", ""), "True");
    EXPECT_EQ(m.nivel, TipoNivel::Forte);

    a.grava(chaveJogador("Bia"), "Nivel", "mestre"); // a name no version wrote: Clássico
    for (const auto& [linha, nivel, justa] :
         {std::tuple{1, TipoNivel::Classico, false}, std::tuple{0, TipoNivel::Forte, true}}) {
        EscolhaDeJogador j = janela();
        j.carrega(true);
        j.selecionaLinha(linha);
        j.jogar();
        EXPECT_EQ(m.nivel, nivel) << m.nomeJogador;
        EXPECT_EQ(m.distribuicaoJusta, justa) << m.nomeJogador;
    }
    EXPECT_EQ(legendaDaDistribuicao(TipoNivel::Classico, false), "A CPU pode trocar as mãos");
    EXPECT_EQ(legendaDaDistribuicao(TipoNivel::Esperto, false), "Distribuição justa");
}

TEST_F(Jogadores, PlayingWithAnEmptyListIsSemNome) {
    EscolhaDeJogador j = janela();
    j.carrega(false);
    j.jogar();
    EXPECT_EQ(m.nomeJogador, "Sem Nome");
    EXPECT_EQ(a.le(chaveBase(), "Assistido", ""), "0") << "the empty name's key is the program's";
}

TEST_F(Jogadores, DeletingClosesTheGapKeepsTheRecordAndDropsTheHistory) {
    lista({"Ana", "Bia", "Caio", "Duda"});
    registro("Bia", "2", "1", "1");
    banco.registraPartida("Bia", {1, TipoNivel::Forte, true, true, 4, 0}, std::nullopt);
    EscolhaDeJogador j = janela();
    j.carrega(false);
    j.seleciona("Bia");
    respostaExcluir = false;
    j.excluir();
    EXPECT_EQ(listaGuardada().size(), 4u) << "no: nothing changes";
    respostaExcluir = true;
    j.excluir();
    EXPECT_EQ(acontecimentos.back(), "pergunta Deseja realmente excluir Bia?");
    EXPECT_EQ(listaGuardada(), (std::vector<std::string>{"Ana", "Caio", "Duda"}));
    EXPECT_EQ(a.le(chaveBase(), "Jogador4", "vazio"), "vazio");
    EXPECT_EQ(j.textoSelecionado(), "Ana");
    EXPECT_EQ(leRegistro(a, "Bia").vitorias, 2) << "registered again, Bia finds her record";
    EXPECT_TRUE(banco.historico("Bia").partidas.empty()) << "but not her history";
}

TEST_F(Jogadores, TheRegisterCommandIsOffAtFiftyAndTheLastDeletionAsksForAPlayer) {
    for (int n = 1; n <= 50; ++n)
        a.grava(chaveBase(), ajuste::jogador(n), std::string("J").append(std::to_string(n)));
    EscolhaDeJogador j = janela();
    j.carrega(false);
    EXPECT_FALSE(j.podeCadastrar());
    j.excluir();
    EXPECT_TRUE(j.podeCadastrar());

    a = ArmazemMemoria();
    lista({"Ana"});
    EscolhaDeJogador k = janela();
    k.carrega(false);
    acontecimentos.clear();
    k.excluir();
    EXPECT_EQ(acontecimentos.back(), "novo jogador");

    // An empty list selects nothing: the question names nobody, and only Sim goes on.
    a = ArmazemMemoria();
    EscolhaDeJogador vazia = janela();
    vazia.carrega(false);
    acontecimentos.clear();
    respostaExcluir = false;
    vazia.excluir();
    EXPECT_EQ(acontecimentos, std::vector<std::string>{"pergunta Deseja realmente excluir ?"});
    respostaExcluir = true;
    vazia.excluir();
    EXPECT_EQ(acontecimentos.back(), "novo jogador");
}

struct Cadastro : Jogadores {
    std::vector<std::string> perguntas, adicionados;
    bool sim = true;
    NovoJogador janela() {
        return NovoJogador(m, a,
                           {[this](const std::string& msg, const std::string& titulo) {
                                perguntas.push_back(titulo + ": " + msg);
                                return sim;
                            },
                            [this](const std::string& nome) { adicionados.push_back(nome); }});
    }
};

TEST_F(Cadastro, TypedNamesAreRegisteredOrRecognised) {
    const struct {
        const char* digitado;
        bool sim;
        bool fecha;
        const char* nomeNaMesa; // after the window closes
        const char* guardado;   // the third entry of the list, "" for none
    } casos[] = {
        {"Caio", true, true, "Caio", "Caio"},
        {"  Caio  ", true, true, "  Caio  ", "Caio"}, // stored trimmed, played as typed
        {"  ana ", true, true, "  ana ", ""},         // asks, and plays as typed
        {"ANA", false, false, "antes", ""},           // no: stays, the name untouched
        {"", true, true, "Jogador", ""},              // "Jogador" exists: asks
    };
    for (const auto& c : casos) {
        a = ArmazemMemoria();
        lista({"Ana", "Jogador"});
        perguntas.clear();
        sim = c.sim;
        m.nomeJogador = "antes";
        NovoJogador n = janela();
        EXPECT_EQ(n.texto(), "Jogador") << "proposed at loading";
        n.digita(c.digitado);
        EXPECT_EQ(n.ok(), c.fecha) << c.digitado;
        if (c.fecha) n.fecha();
        EXPECT_EQ(m.nomeJogador, c.nomeNaMesa) << c.digitado;
        EXPECT_EQ(a.le(chaveBase(), "Jogador3", ""), c.guardado) << c.digitado;
        EXPECT_EQ(perguntas.size(), c.guardado[0] ? 0u : 1u) << c.digitado;
    }
}

TEST_F(Cadastro, TheQuestionNamesTheTextAsTypedAndANameHasTwelveLetters) {
    lista({"Ana"});
    NovoJogador n = janela();
    n.digita("ana");
    sim = false;
    n.ok();
    ASSERT_EQ(perguntas.size(), 1u);
    EXPECT_EQ(perguntas[0], "Corvina: ana já está cadastrado\rDeseja jogar com este nome?");
    n.digita("Çãoçãoçãoçãoção");
    EXPECT_EQ(n.texto(), "Çãoçãoçãoção");
    n.digita("");
    n.fecha();
    EXPECT_EQ(m.nomeJogador, "Sem Nome") << "an empty box closed";
}

TEST(DobraNome, CapitalsFoldInAnyAlphabetAndOtherBytesStay) {
    const struct {
        const char *a, *b;
    } iguais[] = {{"ANA", "ana"}, {"AÇÃO", "ação"}, {"Œ", "œ"}, {"Ÿ", "ÿ"},
                  {"Ω", "ω"},     {"ДИМА", "дима"}, {"ǅ", "ǆ"}};
    for (const auto& c : iguais) EXPECT_EQ(dobraNome(c.a), dobraNome(c.b)) << c.a;
    EXPECT_NE(dobraNome("Ana"), dobraNome("Ana "));
    EXPECT_EQ(dobraNome("A\xff\xfe"
                        "B"),
              "a\xff\xfe"
              "b");
    EXPECT_EQ(dobraNome(std::string("A\0B", 3)), std::string("a\0b", 3));
}

struct Hall : testing::Test {
    static std::vector<std::string> nomes(const std::array<LinhaDoHall, kLinhasDoHall>& linhas) {
        std::vector<std::string> v;
        for (const auto& l : linhas)
            v.push_back(l.nome + " " + l.saldo + (l.verde ? " verde" : ""));
        return v;
    }
};

TEST_F(Hall, RowsGoByBalanceThenByPlaceInTheList) {
    using V = std::vector<std::string>;
    const struct {
        const char* caso;
        std::vector<JogadorDoHall> jogadores;
        const char* nomeJogador;
        V esperado;
    } casos[] = {
        {"no players", {}, "Ana", V(6, ". .")},
        {"seven equal: the first six of the list",
         {{"A", "1", "", ""},
          {"B", "1", "", ""},
          {"C", "1", "", ""},
          {"D", "1", "", ""},
          {"E", "1", "", ""},
          {"F", "1", "", ""},
          {"G", "1", "", ""}},
         "G",
         {"A 1", "B 1", "C 1", "D 1", "E 1", "F 1"}},
        {"all negative, the highest first",
         {{"A", "-3", "", ""}, {"B", "-1", "", ""}},
         "B",
         {"B -1 verde", "A -3", ". .", ". .", ". .", ". ."}},
        {"5 and -3 follow one another; empty counts 0",
         {{"A", "-3", "", ""}, {"B", "", "", ""}, {"C", "5", "", ""}},
         "Sem Nome",
         {"C 5", "B 0", "A -3", ". .", ". .", ". ."}},
        {"capitals differ: only the exact name is green",
         {{"ana", "2", "", ""}, {"Ana", "1", "", ""}},
         "Ana",
         {"ana 2", "Ana 1 verde", ". .", ". .", ". .", ". ."}},
        {"a balance beyond 16 bits stands at their end",
         {{"A", "40000", "", ""}, {"B", "-2", "", ""}, {"C", "1", "", ""}, {"D", "-99999", "", ""}},
         "",
         {"A 32767", "C 1", "B -2", "D -32768", ". .", ". ."}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(nomes(montaHall(c.jogadores, c.nomeJogador)), c.esperado) << c.caso;
    const auto linha = montaHall({{"A", "3", "5 vitórias", ""}}, "A")[0];
    EXPECT_EQ(linha.vitorias, "5");
    EXPECT_EQ(linha.derrotas, "0");
}

TEST_F(Jogadores, TheResetWipesTheListsRecordsOnly) {
    lista({"Ana", "Bia"});
    registro("Ana", "3", "1", "2");
    registro("Bia", "1", "4", "-3");
    registro("Sem Nome", "1", "0", "1");
    a.grava(chaveJogador("Ana"), "Assistido", "1");
    zeraHall(a);
    EXPECT_EQ(*a.bruto(chaveJogador("Ana"), "Vitorias"), "");
    EXPECT_EQ(*a.bruto(chaveJogador("Bia"), "Saldo"), "");
    EXPECT_EQ(a.le(chaveJogador("Ana"), "Assistido", ""), "1");
    EXPECT_EQ(a.le(chaveJogador("Sem Nome"), "Saldo", ""), "1") << "not in the list: kept";
    const auto linhas = montaHall(a, "");
    EXPECT_EQ(linhas[0].nome + linhas[0].vitorias + linhas[0].saldo, "Ana00");
    EXPECT_EQ(linhas[1].nome, "Bia");
}

} // namespace
} // namespace corvina

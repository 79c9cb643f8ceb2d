// Where a match's end is kept: the record in the settings store and the history in the
// database agree after a kill at any moment, a full disk loses nothing, and the histories an
// earlier version kept in the store move into the database.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "apoio/sql_bruto.h"
#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/fim_da_partida.h"
#include "players/lista_de_jogadores.h"

namespace corvina {
namespace {

struct FimDaPartidaTest : testing::Test {
    QTemporaryDir pasta;
    std::string ini = pasta.filePath("Corvina.ini").toStdString();
    std::string db = pasta.filePath("corvina.db").toStdString();

    static Recorde doArmazem(Armazem& a) {
        const Registro r = leRegistro(a, "Ana");
        return {r.vitorias, r.derrotas, r.saldo};
    }
    // A match's end as the table tells it: the record read from the store, plus this match.
    static void termina(ArquivoDeAjustes& a, BancoDoJogo& b, bool venceu, int dia) {
        Recorde r = doArmazem(a);
        (venceu ? r.vitorias : r.derrotas) += 1;
        r.saldo += venceu ? 1 : -1;
        registraFimDaPartida(a, b, {"Ana", TipoNivel::Forte, true, venceu, 4, 2, r, {}}, dia);
    }
    // What each place says of Ana's matches after a start: the store's, the history's.
    std::pair<Recorde, Recorde> dosDoisLados() {
        ArquivoDeAjustes a(ini);
        BancoDoJogo b(db);
        preparaDados(a, b);
        const Estatisticas e = b.historico("Ana").estatisticas({TipoNivel::Forte, true});
        return {doArmazem(a), {e.vitorias, e.derrotas, e.vitorias - e.derrotas}};
    }
};

// Matches end one after another in a process of their own, killed at a random moment: at the
// next start the store's record and the database's history say the same, and no match that
// either of them had is lost.
TEST_F(FimDaPartidaTest, KilledAtAnyMomentBothPlacesAgree) {
    const auto joga = [&](int partidas, std::chrono::microseconds mata) {
        const auto inicio = std::chrono::steady_clock::now();
        const pid_t filho = ::fork();
        if (filho == 0) {
            ArquivoDeAjustes a(ini);
            BancoDoJogo b(db);
            preparaDados(a, b);
            for (int i = 0; i < partidas; ++i) termina(a, b, i % 3 != 0, 9000 + i);
            ::_exit(0);
        }
        if (mata.count() > 0) {
            std::this_thread::sleep_for(mata);
            ::kill(filho, SIGKILL);
        }
        int estado = 0;
        ::waitpid(filho, &estado, 0);
        return std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now() - inicio);
    };
    const auto inteira = joga(40, {});
    auto [armazem, banco] = dosDoisLados();
    ASSERT_EQ(armazem, banco);
    ASSERT_EQ(armazem.vitorias + armazem.derrotas, 40);
    std::mt19937 sorte(11);
    for (int vez = 0; vez < 12; ++vez) {
        const long antes = armazem.vitorias + armazem.derrotas;
        joga(40, std::chrono::microseconds(
                     std::uniform_int_distribution<long>(1, inteira.count())(sorte)));
        std::tie(armazem, banco) = dosDoisLados();
        ASSERT_EQ(armazem, banco) << "killed on try " << vez;
        EXPECT_GE(armazem.vitorias + armazem.derrotas, antes) << "nothing lost";
    }
}

// A disk that takes no more: the player is told once, the game goes on, and every value and
// match is written once there is room again.
TEST_F(FimDaPartidaTest, AFullDiskIsToldOnceAndLosesNothing) {
    int avisos = 0;
    {
        ArquivoDeAjustes a(ini);
        BancoDoJogo b(db);
        a.aoFalhar([&] { ++avisos; });
        b.aoFalhar([&] { ++avisos; });
        ASSERT_TRUE(a.grava(chaveBase(), ajuste::kVelocidade, "9"));
        rlimit antes{};
        ::getrlimit(RLIMIT_FSIZE, &antes);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit cheio = antes;
        cheio.rlim_cur = 64; // no file may grow past 64 bytes: the disk is full
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &cheio), 0);
        for (int i = 0; i < 3; ++i) termina(a, b, true, 9000 + i);
        EXPECT_FALSE(a.grava(chaveBase(), ajuste::kTocarSom, "False"));
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &antes), 0);
        EXPECT_EQ(avisos, 2) << "each place tells it once";
        EXPECT_EQ(b.historico("Ana").partidas.size(), 3u) << "still there for this run";
    } // closing writes what is pending
    const auto [armazem, banco] = dosDoisLados();
    EXPECT_EQ(armazem, (Recorde{3, 0, 3}));
    EXPECT_EQ(banco, armazem);
    ArquivoDeAjustes a(ini);
    EXPECT_EQ(a.le(chaveBase(), ajuste::kVelocidade, "6"), "9");
    EXPECT_EQ(a.le(chaveBase(), ajuste::kTocarSom, "True"), "False");
}

// A store of an earlier version kept every history in the players' keys: at the first start
// they move into the database, damaged ones kept aside there, and leave the store, which goes
// back to a few kilobytes.
TEST_F(FimDaPartidaTest, HistoriesInAnOldStoreMoveIntoTheDatabase) {
    HistoricoDePartidas cheio;
    for (std::size_t i = 0; i < kPartidasNoHistorico + 200; ++i)
        cheio.registra(
            {static_cast<int>(i), kNiveisDoJogo[i % 3].tipo, i % 2 == 0, i % 3 != 0, 4, 3});
    const TextoDoHistorico t = escreveHistorico(cheio);
    {
        ArquivoDeAjustes a(ini);
        const LoteDeAjustes lote(a);
        for (int n = 1; n <= 50; ++n) {
            const std::string nome = "Jogador " + std::to_string(n);
            a.grava(chaveBase(), ajuste::jogador(n), nome);
            a.grava(chaveJogador(nome), ajuste::kVitorias, "7");
            a.grava(chaveJogador(nome), "Historico", n == 50 ? "lixo" : t.partidas);
            a.grava(chaveJogador(nome), "HistoricoAntigo", t.antigas);
        }
        a.grava(chaveJogador("Apagado"), "HistoricoDanificado", "x");
    }
    {
        ArquivoDeAjustes a(ini);
        BancoDoJogo b(db);
        preparaDados(a, b);
        EXPECT_EQ(b.historico("JOGADOR 1"), cheio);
        EXPECT_TRUE(b.historico("Jogador 50").partidas.empty());
        EXPECT_EQ(a.le(chaveJogador("Jogador 1"), "Historico", ""), "");
        EXPECT_EQ(a.le(chaveJogador("Jogador 1"), ajuste::kVitorias, "0"), "7");
        EXPECT_TRUE(a.valoresDosJogadores("HistoricoDanificado").empty());
    }
    struct stat st {};
    ASSERT_EQ(::stat(ini.c_str(), &st), 0);
    EXPECT_LT(st.st_size, 8 * 1024);
    ArquivoDeAjustes a(ini);
    BancoDoJogo b(db);
    preparaDados(a, b); // a second start moves nothing twice
    EXPECT_EQ(b.historico("Jogador 1"), cheio);
}

// What may stand at the database's name: bytes that are no database are kept aside and a new
// one begins; a newer version's, a link or a folder is left as it is and the run goes on in
// memory; a pending record out of range is never written into the store.
TEST_F(FimDaPartidaTest, AHostileDatabaseIsSetAsideOrLeftAlone) {
    const auto escreve = [](const std::string& nome, const std::string& texto) {
        std::ofstream(nome, std::ios::binary | std::ios::trunc) << texto;
    };
    const auto sql = [&](const char* comando) { teste::sqlBruto(db, comando); };
    const struct {
        const char* caso;
        std::function<void()> prepara;
        bool persistente, posto_de_lado;
    } casos[] = {
        {"bytes", [&] { escreve(db, std::string(5000, 'x')); }, true, true},
        {"another program's tables", [&] { sql("CREATE TABLE historicos (x)"); }, true, true},
        {"a newer version",
         [&] { sql("CREATE TABLE versao (numero)"), sql("INSERT INTO versao VALUES (9)"); }, false,
         false},
        {"a link", [&] { ASSERT_EQ(::symlink("/dev/zero", db.c_str()), 0); }, false, false},
        {"a folder", [&] { ASSERT_EQ(::mkdir(db.c_str(), 0700), 0); }, false, false},
    };
    for (const auto& c : casos) {
        std::filesystem::remove_all(db);
        std::filesystem::remove_all(db + ".danificado");
        c.prepara();
        BancoDoJogo b(db);
        EXPECT_EQ(b.persistente(), c.persistente) << c.caso;
        EXPECT_EQ(std::filesystem::exists(db + ".danificado"), c.posto_de_lado) << c.caso;
        b.registraPartida("Ana", {1, TipoNivel::Forte, true, true, 4, 0}, std::nullopt);
        EXPECT_EQ(b.historico("Ana").partidas.size(), 1u) << c.caso << ": the run goes on";
    }
    std::filesystem::remove_all(db);
    BancoDoJogo(db).registraPartida("Ana", {1, TipoNivel::Forte, true, true, 4, 0},
                                    Recorde{1, 0, 1});
    sql("INSERT INTO recordes_pendentes VALUES (99, 'Bia', 9223372036854775807, 0, 0)");
    ArquivoDeAjustes a(ini);
    BancoDoJogo b(db);
    preparaDados(a, b);
    EXPECT_EQ(a.le(chaveJogador("Ana"), ajuste::kVitorias, "0"), "1") << "a kill left it pending";
    EXPECT_EQ(a.le(chaveJogador("Bia"), ajuste::kVitorias, "0"), "0");
}

} // namespace
} // namespace corvina

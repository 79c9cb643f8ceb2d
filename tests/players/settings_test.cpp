#include <gtest/gtest.h>

#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <random>
#include <set>

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/highcor.h"
#include "players/lista_de_jogadores.h"
#include "players/qt/settings.h"

namespace corvina {
namespace {

class SettingsTest : public testing::Test {
  protected:
    QTemporaryDir pasta;
    QString arquivo() const { return pasta.filePath("Corvina.conf"); }
};

TEST_F(SettingsTest, AbsentAndEmptyReadAsTheDefault) {
    Settings s(arquivo());
    EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "6");
    EXPECT_EQ(s.le(chaveBase(), "TocarSom", "TRUE"), "1");
    ASSERT_TRUE(s.grava(chaveBase(), "Velocidade", ""));
    EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "6");
    ASSERT_TRUE(s.grava(chaveBase(), "Velocidade", "9"));
    EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "9");
}

TEST_F(SettingsTest, OddNamesAreStoredAndReadBackAsThemselves) {
    const char* nomes[] = {"a/b", "..\\x", "Ação",  "[General]", "x=y",  "a\\Vitorias",
                           "%41", "A",     "Œuvre", "ΩMEGA",     "Ÿves", "😀 \t\"'"};
    {
        Settings s(arquivo());
        int n = 0;
        for (const char* nome : nomes) {
            ASSERT_TRUE(s.grava(chaveJogador(nome), "Vitorias", std::to_string(++n))) << nome;
            s.grava(chaveBase(), ajuste::jogador(n), nome);
        }
    }
    Settings s(arquivo());
    int n = 0;
    for (const char* nome : nomes) {
        ++n;
        EXPECT_EQ(s.le(chaveJogador(nome), "Vitorias", "0"), std::to_string(n)) << nome;
        EXPECT_EQ(s.le(chaveBase(), ajuste::jogador(n), ""), nome) << "names are data";
    }
    EXPECT_EQ(s.le(chaveBase(), "Vitorias", "0"), "0");
}

// The old high-score file: made when missing, read when it is a plain file of sane size, and
// otherwise (a pipe, a device, a huge file, a folder that can't be written) read as an empty
// table without holding up the start; never rewritten.
TEST(Highcor, MadeOnceThenReadAndOtherwiseLeftAlone) {
    QTemporaryDir pasta;
    const std::string raiz = pasta.path().toStdString(), dat = raiz + "/highcor.dat";
    const auto conteudo = [&] {
        std::ifstream f(dat, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(f), {});
    };
    EXPECT_EQ(preparaHighcor(raiz).nomesArquivo[0], "");
    const std::string feito = conteudo();
    EXPECT_EQ(feito.rfind("\".\"\r\n0\r\n", 0), 0u) << "made when missing";
    EXPECT_EQ(std::count(feito.begin(), feito.end(), '\n'), 21);
    const std::string lido = "\"Ana\"\r\n12\r\n\"Bia\",7\r\n";
    const std::string grande = "\"Ana\"\r\n12\r\n" + std::string(1 << 20, 'x');
    const struct {
        const char* caso;
        std::function<void()> prepara;
        const char* primeiro;
        const std::string* escrito; // a file's text, which must stay as it was
    } casos[] = {
        {"a file", [&] { std::ofstream(dat, std::ios::binary) << lido; }, "Ana", &lido},
        {"a huge file", [&] { std::ofstream(dat, std::ios::binary) << grande; }, "", &grande},
        {"a pipe", [&] { ASSERT_EQ(::mkfifo(dat.c_str(), 0600), 0); }, "", nullptr},
        {"a device", [&] { ASSERT_EQ(::symlink("/dev/zero", dat.c_str()), 0); }, "", nullptr},
    };
    for (const auto& c : casos) {
        ::unlink(dat.c_str());
        c.prepara();
        const Highcor h = preparaHighcor(raiz);
        EXPECT_EQ(h.nomesArquivo[0], c.primeiro) << c.caso;
        if (*c.primeiro) {
            EXPECT_EQ(h.pontosArquivo[0], 12);
            EXPECT_EQ(h.nomesArquivo[1], "Bia");
            EXPECT_EQ(h.pontosArquivo[1], 7);
        }
        if (c.escrito) {
            EXPECT_EQ(conteudo(), *c.escrito) << c.caso << ": never rewritten";
        }
    }
    EXPECT_EQ(preparaHighcor("/proc/corvina-nao-pode").nomesArquivo[0], "");
}

TEST_F(SettingsTest, APipeIsNeverOpenedAndAHugeFileIsMovedAside) {
    ASSERT_EQ(::mkfifo(arquivo().toLocal8Bit().constData(), 0600), 0);
    {
        Settings s(arquivo());
        EXPECT_FALSE(s.persistente());
        s.grava(chaveBase(), "Velocidade", "3");
        EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "3") << "kept for this run";
    }
    ::unlink(arquivo().toLocal8Bit().constData());

    QFile f(arquivo());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(3 << 20, 'x'));
    f.close();
    Settings s(arquivo());
    EXPECT_TRUE(s.persistente());
    EXPECT_EQ(QFileInfo(arquivo() + ".danificado").size(), 3 << 20)
        << "nothing a person had is lost";
    ASSERT_TRUE(s.grava(chaveBase(), "Velocidade", "3"));
}

// Every value is a text, whatever it looks like; what Qt itself wrote reads the same, so no
// store of an earlier version is lost.
TEST_F(SettingsTest, ValuesAreTextsAndQtsOwnFilesReadTheSame) {
    const std::string valores[] = {"@Variant(\\0\\0\\0\\x7f)",
                                   "@@dois",
                                   "@",
                                   " com brancos ",
                                   "a, b; c=d",
                                   "aspas \" e \\ barra",
                                   "linha\nquebra\r\tfim",
                                   std::string("\x01"
                                               "a\x7f"
                                               "f",
                                               5),
                                   "Zé d'Água Œ 😀",
                                   ""};
    {
        Settings s(arquivo());
        int n = 0;
        for (const std::string& v : valores) s.grava(chaveBase(), ajuste::jogador(++n), v);
    }
    QSettings qt(pasta.filePath("qt.ini"), QSettings::IniFormat);
    int n = 0;
    for (const std::string& v : valores)
        qt.setValue(QString("corvina/jogador%1").arg(++n), QString::fromStdString(v));
    qt.sync();
    Settings nossa(arquivo()), deQt(pasta.filePath("qt.ini"));
    n = 0;
    for (const std::string& v : valores) {
        ++n;
        EXPECT_EQ(nossa.le(chaveBase(), ajuste::jogador(n), "?"), v.empty() ? "?" : v) << v;
        // Qt keeps a text with control characters as a serialized "@String(...)", which is
        // read as the text it is, never deserialized.
        if (v[0] != '\x01') {
            EXPECT_EQ(deQt.le(chaveBase(), ajuste::jogador(n), "?"), v.empty() ? "?" : v) << v;
        }
    }
}

// A list that claims 2^31-1 entries, in the form Qt would deserialize: read as the text it is.
TEST_F(SettingsTest, ASerializedValueIsNeverDeserialized) {
    QFile f(arquivo());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[corvina]\njogador1=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\nvelocidade=9\n");
    f.close();
    Settings s(arquivo());
    const std::string lido = s.le(chaveBase(), "Jogador1", "");
    EXPECT_EQ(lido.rfind("@Variant(", 0), 0u) << "the text itself, escapes read as escapes";
    EXPECT_EQ(lido.back(), ')');
    EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "9");
}

// Bytes that are no settings file are kept aside, byte for byte, before a new store is begun;
// of a store damaged again and again the three newest copies stay.
TEST_F(SettingsTest, ADamagedStoreIsSetAsideAndTheNewestCopiesAreKept) {
    std::mt19937 sorte(23);
    std::vector<QByteArray> estragos;
    for (int vez = 0; vez < 4; ++vez) {
        QByteArray lixo(500 * 1024, '\0');
        for (char& c : lixo) c = static_cast<char>(sorte());
        if (vez == 3) lixo = "[corvina]\njogador1=Ana\nisto não é um ajuste\n";
        estragos.push_back(lixo);
        QFile f(arquivo());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(lixo);
        f.close();
        Settings s(arquivo());
        EXPECT_TRUE(s.persistente());
        EXPECT_EQ(s.le(chaveBase(), "Jogador1", "?"), "?") << vez;
        ASSERT_TRUE(s.grava(chaveBase(), "Velocidade", "3"));
    }
    const auto conteudo = [](const QString& nome) {
        QFile f(nome);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(none)");
    };
    EXPECT_EQ(conteudo(arquivo() + ".danificado"), estragos[3]);
    EXPECT_EQ(conteudo(arquivo() + ".danificado2"), estragos[2]);
    EXPECT_EQ(conteudo(arquivo() + ".danificado3"), estragos[1]);
    EXPECT_FALSE(QFileInfo::exists(arquivo() + ".danificado4"));
    EXPECT_EQ(Settings(arquivo()).le(chaveBase(), "Velocidade", "6"), "3");
}

// The game killed at any moment of a deletion from a long list: the store holds the list as it
// was or as it became, never a name twice nor one lost.
TEST_F(SettingsTest, AListChangeKilledInTheMiddleIsAllOrNothing) {
    constexpr int kJogadores = 3000, kTentativas = 16;
    std::vector<std::string> lista;
    {
        Settings s(arquivo());
        const LoteDeAjustes lote(s);
        for (int n = 1; n <= kJogadores; ++n) {
            lista.push_back("J" + std::to_string(n));
            s.grava(chaveBase(), ajuste::jogador(n), lista.back());
        }
    }
    const auto todos = [&] {
        std::vector<std::string> nomes;
        Settings s(arquivo());
        for (int n = 1;; ++n) {
            std::string nome = s.le(chaveBase(), ajuste::jogador(n), "");
            if (nome.empty()) return nomes;
            nomes.push_back(std::move(nome));
        }
    };
    // A deletion in a process of its own, killed after `espera` (or left to end).
    const auto apaga = [&](std::chrono::microseconds espera, bool mata) {
        const pid_t filho = ::fork();
        if (filho == 0) {
            Settings s(arquivo());
            tiraDaLista(s, 1);
            ::_exit(0);
        }
        const auto inicio = std::chrono::steady_clock::now();
        if (mata) {
            std::this_thread::sleep_for(espera);
            ::kill(filho, SIGKILL);
        }
        int estado = 0;
        ::waitpid(filho, &estado, 0);
        return std::chrono::steady_clock::now() - inicio;
    };
    const auto inteira = std::chrono::duration_cast<std::chrono::microseconds>(apaga({}, false));
    lista.erase(lista.begin());
    ASSERT_EQ(todos(), lista);
    std::mt19937 sorte(5);
    for (int i = 0; i < kTentativas; ++i) {
        apaga(std::chrono::microseconds(
                  std::uniform_int_distribution<long>(0, inteira.count() * 5 / 4)(sorte)),
              true);
        const std::vector<std::string> agora = todos();
        if (agora.size() != lista.size()) lista.erase(lista.begin());
        ASSERT_EQ(agora, lista) << "killed on try " << i;
    }
}

// What another hand does to the file while the game runs: an editor's save in another encoding
// (no longer settings: kept aside, the game's values written), another copy of the game adding a
// player (kept beside ours), a link kept by a dotfile manager (written through), a file edited
// by hand with its own capitals (read as ours), and a pipe put in its place (never written).
TEST_F(SettingsTest, TheFileChangedUnderTheGameLosesNothing) {
    const std::string f = arquivo().toStdString();
    const auto escreve = [](const std::string& nome, const std::string& texto) {
        std::ofstream(nome, std::ios::binary | std::ios::trunc) << texto;
    };
    const auto le = [](const std::string& nome) {
        std::ifstream in(nome, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    };
    {
        Settings s(arquivo());
        ASSERT_TRUE(s.grava(chaveJogador("Ana"), "Vitorias", "12"));
        std::this_thread::sleep_for(std::chrono::milliseconds(20)); // a later modification time
        escreve(f, "[corvina]\njogador1=B\xf3\x62\n");
        ASSERT_TRUE(s.grava(chaveBase(), "Velocidade", "3"));
        escreve(f + ".outro", le(f) + "[corvina]\njogador2=Bia\n");
        ASSERT_EQ(::rename((f + ".outro").c_str(), f.c_str()), 0);
        ASSERT_TRUE(s.grava(chaveBase(), "TipoCarta", "5"));
    }
    EXPECT_EQ(le(f + ".danificado"), "[corvina]\njogador1=B\xf3\x62\n");
    {
        Settings s(arquivo());
        EXPECT_EQ(s.le(chaveJogador("Ana"), "Vitorias", "0"), "12");
        EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "3");
        EXPECT_EQ(s.le(chaveBase(), "Jogador2", ""), "Bia") << "another copy's change stays";
    }

    const std::string alvo = pasta.filePath("dotfiles.ini").toStdString();
    ASSERT_EQ(::rename(f.c_str(), alvo.c_str()), 0);
    ASSERT_EQ(::symlink(alvo.c_str(), f.c_str()), 0);
    escreve(alvo, le(alvo) + "[Corvina]\nJogador3=Cid\n[jogadores]\nBob\\Assistido=1\n");
    escreve(f + ".lock", ""); // left by a crash
    const auto antes = std::chrono::steady_clock::now();
    {
        Settings s(arquivo());
        EXPECT_EQ(s.le(chaveBase(), "jogador3", ""), "Cid");
        EXPECT_EQ(s.le(chaveJogador("BOB"), "assistido", "0"), "1");
        ASSERT_TRUE(s.grava(chaveJogador("bob"), "Assistido", "0"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(5));
    struct stat st {};
    ASSERT_EQ(::lstat(f.c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(st.st_mode)) << "the link stays a link";
    EXPECT_EQ(Settings(QString::fromStdString(alvo)).le(chaveJogador("Bob"), "Assistido", "?"),
              "0");
    EXPECT_EQ(le(alvo).find("ssistido=1"), std::string::npos) << "one value, not two spellings";

    // A pipe put at its name would hold every write up for ever: the values last for the run.
    Settings s(arquivo());
    ASSERT_EQ(::unlink(alvo.c_str()), 0);
    ASSERT_EQ(::mkfifo(alvo.c_str(), 0600), 0);
    s.grava(chaveBase(), "Velocidade", "3");
    EXPECT_FALSE(s.persistente());
    EXPECT_EQ(s.le(chaveBase(), "Velocidade", "6"), "3");
    EXPECT_EQ(s.le(chaveBase(), "Jogador3", ""), "Cid") << "what was stored stays for the run";
}

// The writer never writes what the reader would refuse: a value that would take the file past
// its limit is a failed write, and everything stored stays readable.
TEST_F(SettingsTest, AWriteThatWouldOutgrowTheReaderIsRefused) {
    Settings s(arquivo());
    ASSERT_TRUE(s.grava(chaveJogador("Ana"), "Vitorias", "7"));
    EXPECT_FALSE(s.grava(chaveBase(), "Jogador2", std::string(1024 * 1024, 'x')));
    Settings depois(arquivo());
    EXPECT_EQ(depois.le(chaveJogador("Ana"), "Vitorias", "0"), "7");
    EXPECT_FALSE(QFileInfo::exists(arquivo() + ".danificado"));
}

} // namespace
} // namespace corvina

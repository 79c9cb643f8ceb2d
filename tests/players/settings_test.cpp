#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core/ajustes.h"
#include "players/highcor.h"
#include "players/lugar_do_ajuste.h"
#include "players/settings.h"

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

TEST_F(SettingsTest, KeysAndNamesIgnoreCaseAndSurviveARestart) {
    {
        Settings s(arquivo());
        s.grava(chaveBase(), "TipoCarta", "7");
        s.grava(chaveJogador("Ana"), "Vitorias", "3");
    }
    Settings s(arquivo());
    EXPECT_EQ(s.le("SOFTWARE\\LUNARIS\\CORVINA", "Tipocarta", "4"), "7");
    EXPECT_EQ(s.le(chaveJogador("ANA"), "vitorias", "0"), "3");
    EXPECT_EQ(s.le(chaveJogador("Anabela"), "Vitorias", "0"), "0");
}

TEST_F(SettingsTest, OddNamesAreStoredAndReadBackAsThemselves) {
    const char* nomes[] = {"a/b", "..\\x", "Ação", "[General]", "x=y", "a\\Vitorias", "%41", "A"};
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
    EXPECT_EQ(s.le(chaveJogador("ação"), "Vitorias", "0"), "3") << "accents fold too";
    EXPECT_EQ(s.le(chaveJogador("a"), "Vitorias", "0"), "8");
    EXPECT_EQ(s.le(chaveBase(), "Vitorias", "0"), "0");
}

TEST(LugarDoAjuste, NamesNeverBecomePathsOrSections) {
    for (const char* nome : {"a/b", "..\\x", "[General]", "x=y", "a b", "é"}) {
        const LugarDoAjuste l = lugarDoAjuste(chaveJogador(nome), "Saldo");
        EXPECT_EQ(l.grupo.find('/', 10), std::string::npos) << nome;
        EXPECT_EQ(l.grupo.find_first_of("\\[]= "), std::string::npos) << nome;
    }
    EXPECT_EQ(lugarDoAjuste(chaveBase(), "UltimoJogador").grupo, "corvina");
    EXPECT_NE(lugarDoAjuste(chaveJogador("a\\b"), "x").grupo,
              lugarDoAjuste(chaveJogador("a"), "b\\x").grupo);
}

TEST(Highcor, MadeOnceThenReadAndLeftAlone) {
    QTemporaryDir pasta;
    preparaHighcor(pasta.path());
    QFile arquivo(pasta.filePath("highcor.dat"));
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    const QByteArray feito = arquivo.readAll();
    arquivo.close();
    EXPECT_EQ(feito.count("\r\n"), 21);
    EXPECT_TRUE(feito.startsWith("\".\"\r\n0\r\n"));

    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly | QIODevice::Truncate));
    arquivo.write("\"Ana\"\r\n12\r\n\"Bia\",7\r\n");
    arquivo.close();
    const Highcor h = preparaHighcor(pasta.path());
    EXPECT_EQ(h.nomesArquivo[0], "Ana");
    EXPECT_EQ(h.pontosArquivo[0], 12);
    EXPECT_EQ(h.nomesArquivo[1], "Bia");
    EXPECT_EQ(h.pontosArquivo[1], 7);
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(arquivo.readAll(), QByteArray("\"Ana\"\r\n12\r\n\"Bia\",7\r\n"));
}

TEST(Highcor, AFolderThatCantBeWrittenLeavesAnEmptyTable) {
    const Highcor h = preparaHighcor("/proc/corvina-nao-pode");
    EXPECT_EQ(h.nomesArquivo[0], "");
}

} // namespace
} // namespace corvina

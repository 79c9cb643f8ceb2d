// The rules of the update that need no network: the answer's fields, which version is newer,
// what the check tells the player, the download's bookkeeping and the bar's geometry.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "update/assinatura.h"
#include "update/campos.h"
#include "update/controle_download.h"
#include "update/resposta.h"
#include "update/versao.h"

namespace corvina {
namespace {

TEST(Campo, FieldsBetweenDelimitersAddedWhereMissing) {
    const struct {
        const char* texto;
        const char* delim;
        int n;
        const char* campo;
    } casos[] = {
        {"!*!x!*!3.8.0!*!https://a/b.deb!*!", "!*!", 1, "x"},
        {"!*!x!*!3.8.0!*!https://a/b.deb!*!", "!*!", 2, "3.8.0"},
        {"!*!x!*!3.8.0!*!https://a/b.deb\r\n", "!*!", 3, "https://a/b.deb\r\n"},
        {"!*!x!*!3.8.0!*!https://a/b.deb!*!", "!*!", 4, ""},
        {"x!*!y", "!*!", 1, "x"},
        {"3.7.10", ".", 3, "10"},
        {"3.7", ".", 3, ""},
        {"", ".", 1, ""},
        {"a.b", ".", 0, ""},
    };
    for (const auto& c : casos)
        EXPECT_EQ(campo(c.texto, c.delim, c.n), c.campo) << c.texto << " " << c.n;
    EXPECT_EQ(troca("Corvina do Sul", " ", "%20"), "Corvina%20do%20Sul");
    EXPECT_EQ(troca("abb", "ab", "a"), "a") << "a replacement that makes a new occurrence";
    EXPECT_EQ(troca("aXa", "a", "ba"), "aXa")
        << "a replacement holding what it replaces is refused";
}

TEST(MaiorVersion, ComparesTheVersionsAsTheirTextsCompare) {
    const struct {
        const char *local, *remota;
        bool maior;
    } casos[] = {
        {"3.7.4", "3.8.0", true},
        {"3.7.4", "3.7.4", false},
        {"3.7.4", "3.7.3", false},
        {"3.7.4", "3.7.10", true},
        {"3.8.0", "3.7.10", false}, // 380 both
        {"3.7.4", "10.0.0", false}, // "1000" sorts before "374"
        {"0.1.0", "0.2", true},
        {"0.1.0", "lixo", false},
        {"0.1.0", "99999999999999999999.9.9", true}, // no overflow: a long text sorts after
    };
    for (const auto& c : casos) EXPECT_EQ(MaiorVersion(c.local, c.remota), c.maior) << c.remota;
    EXPECT_EQ(versaoParaChecagem({3, 7, 0}), "3.7.0");
    EXPECT_EQ(versaoParaUsuario({3, 7, 0}), "3.7");
    EXPECT_EQ(versaoParaUsuario({3, 7, 4}), "3.7.4");
}

TEST(Resposta, TheLastLineWithItsLineEndAndWhatThePlayerIsTold) {
    EXPECT_EQ(ultimaLinha("primeira\r\n!*!x!*!3.8.0!*!u!*!\r\n"), "!*!x!*!3.8.0!*!u!*!\r\n");
    EXPECT_EQ(ultimaLinha("sem quebra"), "sem quebra\r\n");
    EXPECT_EQ(ultimaLinha("a\rb"), "b\r\n");
    EXPECT_EQ(ultimaLinha(""), "");
    EXPECT_EQ(ultimaLinha("\r\n"), "\r\n");

    EXPECT_EQ(avaliaResposta("", "0.1.0", "Corvina"), "Não foi possível conectar ao servidor");
    EXPECT_EQ(avaliaResposta("<html>404</html>", "0.1.0", "Corvina"),
              "Não foi possível conectar ao servidor");
    EXPECT_EQ(avaliaResposta("!*!x!*!0.1.0!*!u!*!\r\n", "0.1.0", "Corvina"),
              "Você já está utilizando a versão mais recente do Corvina");
    const std::string oferta =
        avaliaResposta("!*!x!*!0.2.0!*!https://a/c.deb!*!\r\n", "0.1.0", "Corvina");
    EXPECT_EQ(campo(oferta, "!*!", 1), "Link");
    EXPECT_EQ(campo(oferta, "!*!", 3), "0.2.0");
    EXPECT_EQ(campo(oferta, "!*!", 4), "https://a/c.deb");
    EXPECT_NE(campo(avaliaResposta("x!*!0.2.0!*!u", "0.1.0", "Corvina"), "!*!", 1), "Link")
        << "without the leading delimiter the raw answer is shown";
}

TEST(ControleDeDownload, ThePercentageFollowsTheBytesAndTheWatchdogTheSilence) {
    ControleDeDownload c;
    c.inicia(0, 8);
    const struct {
        std::int64_t lidos, total;
        int percentual;
    } passos[] = {{0, 100, 0}, {1, 3, 33}, {2, 3, 67}, {1, 8, 12}, {3, 8, 38}, {5, 0, 38}};
    double agora = 0;
    for (const auto& p : passos) {
        c.progresso(p.lidos, p.total, agora += 5);
        EXPECT_EQ(c.percentual(), p.percentual) << p.lidos << "/" << p.total;
        EXPECT_FALSE(c.expirou(agora + 7.9)) << "data keeps coming: never given up";
    }
    c.completo();
    EXPECT_EQ(c.situacao(), Situacao::Falhou) << "38 % is not complete";

    ControleDeDownload d;
    d.inicia(0, 8);
    d.progresso(10, 10, 1);
    d.completo();
    EXPECT_EQ(d.situacao(), Situacao::Completo);

    ControleDeDownload e;
    e.inicia(0, 8);
    EXPECT_FALSE(e.expirou(8));
    EXPECT_TRUE(e.expirou(8.1));
    e.progresso(10, 10, 9);
    e.completo();
    EXPECT_EQ(e.situacao(), Situacao::Correndo) << "once given up, nothing is heard";
    e.inicia(20, 8);
    EXPECT_FALSE(e.expirou(27)) << "a later read ends by the watchdog, not at once";
    EXPECT_TRUE(e.expirou(28.5));
}

// The release script signs with OpenSSL; the game checks with libsodium: one signature.
TEST(AssinaPacote, WhatTheReleaseScriptSignsTheGameAccepts) {
    const std::string pasta = testing::TempDir() + "corvina-assina-" + std::to_string(::getpid());
    const std::string script = std::string("bash ") + CORVINA_RAIZ + "/tools/assina_pacote.sh";
    const auto roda = [](const std::string& comando) {
        std::string saida;
        FILE* p = ::popen(comando.c_str(), "r");
        for (char buf[512]; p && std::fgets(buf, sizeof buf, p);) saida += buf;
        const int status = p ? ::pclose(p) : -1;
        EXPECT_EQ(status, 0) << comando;
        return saida;
    };
    const std::string publica = roda(script + " chave " + pasta + " 2>/dev/null");
    ASSERT_EQ(publica.size(), 65u) << publica; // 64 hex digits and the line end
    const std::string chave = publica.substr(0, 64);
    const std::string pacote = pasta + "/corvina_0.2.0_amd64.deb";
    { std::ofstream(pacote, std::ios::binary) << std::string(5000, 'd') << "fim"; }
    const std::string linha = roda(script + " assina " + pasta + "/corvina-update.pem " + pacote +
                                   " 0.2.0 https://a/c.deb");
    EXPECT_EQ(campo(linha, "!*!", 2), "0.2.0");
    EXPECT_EQ(campo(linha, "!*!", 3), "https://a/c.deb");
    const std::string assinatura = campo(linha, "!*!", 4);
    EXPECT_TRUE(assinaturaConfere(pacote, "0.2.0", assinatura, chave));
    EXPECT_FALSE(assinaturaConfere(pacote, "0.3.0", assinatura, chave)) << "another version";
    { std::ofstream(pacote, std::ios::binary | std::ios::app) << "!"; }
    EXPECT_FALSE(assinaturaConfere(pacote, "0.2.0", assinatura, chave)) << "one byte more";
    EXPECT_FALSE(assinaturaConfere(pasta + "/nao-ha.deb", "0.2.0", assinatura, chave));
    std::filesystem::remove_all(pasta);
}

} // namespace
} // namespace corvina

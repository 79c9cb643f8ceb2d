#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

#include "arquivos/pasta_privada.h"

namespace corvina {
namespace {

TEST(PastaPrivada, OnlyAFolderClosedToOthersHoldsTheAnswer) {
    QTemporaryDir raiz;
    const std::string r = raiz.path().toStdString();
    const std::string aberta = r + "/aberta", privada = r + "/privada", atalho = r + "/atalho";
    const std::string runtime = r + "/runtime", sistema = r + "/sistema";
    for (const auto& p : {aberta, privada, runtime, sistema})
        ASSERT_EQ(::mkdir(p.c_str(), 0700), 0);
    ::chmod(aberta.c_str(), 01777); // as the shared /tmp is
    ASSERT_EQ(::symlink(privada.c_str(), atalho.c_str()), 0);

    const struct {
        std::string temp, runtime, esperada;
    } casos[] = {
        {privada, runtime, privada},
        {aberta, runtime, runtime + "/corvina"},
        {atalho, runtime, runtime + "/corvina"},
        {r + "/nenhuma", runtime, runtime + "/corvina"},
        {"", "", ""}, // a fresh one under the system's folder, below
    };
    for (const auto& c : casos) {
        const std::string escolhida = escolhePastaPrivada(c.temp, c.runtime, sistema);
        if (!c.esperada.empty()) {
            EXPECT_EQ(escolhida, c.esperada) << c.temp;
        } else {
            EXPECT_EQ(escolhida.rfind(sistema + "/corvina-", 0), 0u) << escolhida;
        }
        EXPECT_TRUE(pastaSoMinha(escolhida)) << escolhida;
    }
    // Someone else's folder at our name under the runtime folder is never taken.
    ::chmod((runtime + "/corvina").c_str(), 0755);
    EXPECT_NE(escolhePastaPrivada("", runtime, sistema), runtime + "/corvina");
}

} // namespace
} // namespace corvina

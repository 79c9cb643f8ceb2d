// The privileged update helper, run as a program: it installs only the copy it checked itself,
// whatever the user's processes do to their file, and refuses everything else.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "apoio/chave_de_teste.h"
#include "update/assinatura.h"
#include "update/instalador/instala.h"

extern char** environ;

namespace corvina {
namespace {

namespace fs = std::filesystem;

std::string le(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}
void escreve(const fs::path& p, const std::string& conteudo) {
    std::ofstream(p, std::ios::binary | std::ios::trunc) << conteudo;
}

struct Instalador : testing::Test {
    fs::path raiz = fs::temp_directory_path() / ("corvina-instala-" + std::to_string(::getpid()));
    fs::path casa = raiz / "casa", segura = raiz / "segura", instalado = raiz / "instalado";
    fs::path script = raiz / "instalador.sh";
    std::string pacote = "!<arch>\ndebian-binary   " + std::string(40000, 'd');
    teste::ChaveDeTeste chaves;

    Instalador() {
        fs::create_directories(casa);
        // The package installer of the test keeps what it was given, and where it lay.
        escreve(script, "#!/bin/sh\ncp \"$1\" '" + instalado.string() + "' && echo \"$1\" > '" +
                            instalado.string() + ".de'\n");
        fs::permissions(script, fs::perms::owner_all);
    }
    ~Instalador() override { fs::remove_all(raiz); }

    std::string assina(const std::string& dados) const { return chaves.assina(dados); }
    static std::string assinaPorOutro(const std::string& dados) {
        teste::ChaveDeTeste outra;
        return outra.assina(dados);
    }
    std::string chave() const { return chaves.publicaHex(); }
    // Runs the helper; its exit code.
    int roda(const std::string& caminho, const std::string& assinatura) {
        const std::string env[] = {"CASA=" + casa.string(), "PASTA_SEGURA=" + segura.string(),
                                   "CHAVE=" + chave(), "INSTALADOR=" + script.string()};
        std::vector<char*> envp;
        for (const auto& e : env) envp.push_back(const_cast<char*>(e.c_str()));
        envp.push_back(nullptr);
        std::string programa = CORVINA_INSTALADOR_DE_TESTE;
        char* argv[] = {programa.data(), const_cast<char*>(caminho.c_str()),
                        const_cast<char*>(assinatura.c_str()), nullptr};
        pid_t pid = 0;
        if (posix_spawn(&pid, programa.c_str(), nullptr, nullptr, argv, envp.data()) != 0)
            return -1;
        int estado = 0;
        waitpid(pid, &estado, 0);
        return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    }
};

TEST_F(Instalador, AGoodPackageIsInstalledFromTheCheckedCopy) {
    const fs::path arquivo = casa / "Documentos" / "Corvina-1.deb";
    fs::create_directories(arquivo.parent_path());
    escreve(arquivo, pacote);
    EXPECT_EQ(roda(arquivo, assina(pacote)), 0);
    EXPECT_EQ(le(instalado), pacote);
    const std::string de = le(instalado.string() + ".de");
    EXPECT_EQ(de.rfind(segura.string() + "/", 0), 0u) << "installed from the safe copy: " << de;
    EXPECT_TRUE(fs::is_empty(segura)) << "the copy is gone afterwards";
    EXPECT_EQ(fs::status(segura).permissions() & fs::perms::all, fs::perms::owner_all);
}

TEST_F(Instalador, EverythingElseIsRefusedAndNothingInstalled) {
    const fs::path arquivo = casa / "Corvina-1.deb";
    const fs::path fora = raiz / "Corvina-fora.deb", atalho = casa / "atalho.deb";
    const struct {
        const char* caso;
        std::function<void()> prepara;
        fs::path caminho;
        std::string assinatura;
        Desfecho esperado;
    } casos[] = {
        {"swapped after the game's check",
         [&] {
             escreve(arquivo, pacote);
             ASSERT_TRUE(assinaturaConfere(arquivo, assina(pacote), chave()));
             escreve(arquivo, pacote + "#!/bin/sh rm -rf /");
         },
         arquivo, assina(pacote), Desfecho::NaoAssinado},
        {"truncated", [&] { escreve(arquivo, pacote.substr(0, 1000)); }, arquivo, assina(pacote),
         Desfecho::NaoAssinado},
        {"unsigned", [&] { escreve(arquivo, pacote); }, arquivo, "", Desfecho::NaoAssinado},
        {"signed by another key", [&] { escreve(arquivo, pacote); }, arquivo,
         assinaPorOutro(pacote), Desfecho::NaoAssinado},
        {"a link to the package",
         [&] {
             escreve(arquivo, pacote);
             fs::create_symlink(arquivo, atalho);
         },
         atalho, assina(pacote), Desfecho::NaoRegular},
        {"outside the user's folders", [&] { escreve(fora, pacote); }, fora, assina(pacote),
         Desfecho::ForaDaCasa},
        {"a path that climbs out", [&] { escreve(fora, pacote); }, casa / ".." / fora.filename(),
         assina(pacote), Desfecho::ForaDaCasa},
        {"a relative path", [&] { escreve(arquivo, pacote); }, "Corvina-1.deb", assina(pacote),
         Desfecho::Argumentos},
        {"a folder", [] {}, casa, assina(pacote), Desfecho::ForaDaCasa},
    };
    for (const auto& c : casos) {
        fs::remove(arquivo);
        fs::remove(atalho);
        c.prepara();
        EXPECT_EQ(roda(c.caminho, c.assinatura), static_cast<int>(c.esperado)) << c.caso;
        EXPECT_FALSE(fs::exists(instalado)) << c.caso;
        EXPECT_TRUE(!fs::exists(segura) || fs::is_empty(segura)) << c.caso;
    }
}

} // namespace
} // namespace corvina

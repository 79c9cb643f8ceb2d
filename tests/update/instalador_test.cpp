// The privileged update helper, run as a program: it installs only the copy it checked itself,
// whatever the user's processes do to their file, and refuses everything else.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>

#include "apoio/chave_de_teste.h"
#include "update/assinatura.h"
#include "update/instalador/caminho_seguro.h"
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

    // Signed as the release script signs, for version 3.8.0 unless said.
    std::string assina(const std::string& dados, const char* versao = "3.8.0") const {
        return chaves.assinaPacote(versao, dados);
    }
    static std::string assinaPorOutro(const std::string& dados) {
        teste::ChaveDeTeste outra;
        return outra.assinaPacote("3.8.0", dados);
    }
    std::string chave() const { return chaves.publicaHex(); }
    // Runs the helper over 3.7.4 installed; its exit code.
    int roda(const std::string& caminho, const std::string& assinatura,
             const std::string& versao = "3.8.0") {
        const std::string env[] = {"CASA=" + casa.string(), "PASTA_SEGURA=" + segura.string(),
                                   "CHAVE=" + chave(), "INSTALADOR=" + script.string(),
                                   "VERSAO_INSTALADA=3.7.4"};
        std::vector<char*> envp;
        for (const auto& e : env) envp.push_back(const_cast<char*>(e.c_str()));
        envp.push_back(nullptr);
        std::string programa = CORVINA_INSTALADOR_DE_TESTE;
        char* argv[] = {programa.data(), const_cast<char*>(caminho.c_str()),
                        const_cast<char*>(versao.c_str()), const_cast<char*>(assinatura.c_str()),
                        nullptr};
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
    const fs::path aberta = casa / "aberta", naAberta = aberta / "Corvina-1.deb";
    const struct {
        const char* caso;
        std::function<void()> prepara;
        fs::path caminho;
        std::string assinatura, versao;
        Desfecho esperado;
    } casos[] = {
        {"swapped after the game's check",
         [&] {
             escreve(arquivo, pacote);
             ASSERT_TRUE(assinaturaConfere(arquivo, "3.8.0", assina(pacote), chave()));
             escreve(arquivo, pacote + "#!/bin/sh rm -rf /");
         },
         arquivo, assina(pacote), "3.8.0", Desfecho::NaoAssinado},
        {"truncated", [&] { escreve(arquivo, pacote.substr(0, 1000)); }, arquivo, assina(pacote),
         "3.8.0", Desfecho::NaoAssinado},
        {"unsigned", [&] { escreve(arquivo, pacote); }, arquivo, "", "3.8.0",
         Desfecho::NaoAssinado},
        {"signed by another key", [&] { escreve(arquivo, pacote); }, arquivo,
         assinaPorOutro(pacote), "3.8.0", Desfecho::NaoAssinado},
        {"signed as 3.8.0, offered as 3.9.0", [&] { escreve(arquivo, pacote); }, arquivo,
         assina(pacote), "3.9.0", Desfecho::NaoAssinado},
        {"an older package, signed in its day", [&] { escreve(arquivo, pacote); }, arquivo,
         assina(pacote, "3.7.3"), "3.7.3", Desfecho::NaoENova},
        {"the installed version again", [&] { escreve(arquivo, pacote); }, arquivo,
         assina(pacote, "3.7.4"), "3.7.4", Desfecho::NaoENova},
        {"a version that is no version", [&] { escreve(arquivo, pacote); }, arquivo,
         assina(pacote, "3.8"), "3.8", Desfecho::Argumentos},
        {"a link to the package",
         [&] {
             escreve(arquivo, pacote);
             fs::create_symlink(arquivo, atalho);
         },
         atalho, assina(pacote), "3.8.0", Desfecho::Inacessivel},
        {"a folder anybody may write",
         [&] {
             fs::create_directories(aberta);
             escreve(naAberta, pacote);
             fs::permissions(aberta, fs::perms::others_write, fs::perm_options::add);
         },
         naAberta, assina(pacote), "3.8.0", Desfecho::Inacessivel},
        {"a pipe", [&] { ::mkfifo(arquivo.c_str(), 0600); }, arquivo, assina(pacote), "3.8.0",
         Desfecho::Inacessivel},
        {"outside the user's folders", [&] { escreve(fora, pacote); }, fora, assina(pacote),
         "3.8.0", Desfecho::Inacessivel},
        {"a path that climbs out", [&] { escreve(fora, pacote); }, casa / ".." / fora.filename(),
         assina(pacote), "3.8.0", Desfecho::Inacessivel},
        {"a relative path", [&] { escreve(arquivo, pacote); }, "Corvina-1.deb", assina(pacote),
         "3.8.0", Desfecho::Argumentos},
        {"a folder", [] {}, casa, assina(pacote), "3.8.0", Desfecho::Inacessivel},
    };
    for (const auto& c : casos) {
        fs::remove(arquivo);
        fs::remove(atalho);
        fs::remove_all(aberta);
        c.prepara();
        EXPECT_EQ(roda(c.caminho, c.assinatura, c.versao), static_cast<int>(c.esperado)) << c.caso;
        EXPECT_FALSE(fs::exists(instalado)) << c.caso;
        EXPECT_TRUE(!fs::exists(segura) || fs::is_empty(segura)) << c.caso;
    }
}

TEST(UsuarioDoPkexec, OnlyPlainDigitsOfARealUserAreAUser) {
    const struct {
        const char* texto;
        std::optional<uid_t> usuario;
    } casos[] = {
        {"1000", 1000},       {"4294967294", 4294967294u},  {"0", std::nullopt},
        {"00", std::nullopt}, {"4294967295", std::nullopt}, {"4294967296", std::nullopt},
        {"", std::nullopt},   {"+1000", std::nullopt},      {"1000 ", std::nullopt},
        {"-1", std::nullopt}, {"0x3e8", std::nullopt},      {"99999999999999999999", std::nullopt},
    };
    for (const auto& c : casos) EXPECT_EQ(usuarioDoPkexec(c.texto), c.usuario) << c.texto;
}

// The user swaps the package's folder for a link to somewhere else, again and again, while the
// helper reaches for the package: each try opens the user's own package or nothing, never what
// lies behind the link.
TEST_F(Instalador, AFolderSwappedForALinkDuringTheWalkIsNeverFollowed) {
    const fs::path pasta = casa / "Documentos", atalho = casa / "atalho", alheia = raiz / "alheia";
    fs::create_directories(pasta);
    fs::create_directories(alheia);
    escreve(pasta / "Corvina.deb", pacote);
    escreve(alheia / "Corvina.deb", "o arquivo de outro");
    fs::create_symlink(alheia, atalho);
    struct stat proprio {};
    ASSERT_EQ(::stat((pasta / "Corvina.deb").c_str(), &proprio), 0);

    std::atomic<bool> parar{false};
    std::thread troca([&] {
        while (!parar)
            if (::renameat2(AT_FDCWD, pasta.c_str(), AT_FDCWD, atalho.c_str(), RENAME_EXCHANGE) !=
                0)
                return; // a file system without the exchange: nothing swaps
    });
    constexpr int kTentativas = 2000;
    int abertos = 0;
    for (int i = 0; i < kTentativas; ++i) {
        const Descritor d =
            abreArquivoDoUsuario(casa, (pasta / "Corvina.deb").string(), {::getuid(), ::getgid()});
        if (!d) continue;
        struct stat st {};
        ASSERT_EQ(::fstat(d.fd(), &st), 0);
        EXPECT_EQ(st.st_ino, proprio.st_ino) << "try " << i << " opened what lay behind the link";
        ++abertos;
    }
    parar = true;
    troca.join();
    EXPECT_GT(abertos, 0) << "the package itself is reached when nothing is swapped";
}

} // namespace
} // namespace corvina

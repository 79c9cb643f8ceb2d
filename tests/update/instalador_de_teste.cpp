// The update helper as its tests run it: the same code, with the user, the safe folder, the key,
// the installed version and the installer taken from the environment instead of pkexec and the
// system.

#include <unistd.h>

#include <cstdlib>
#include <string>

#include "update/instalador/instala.h"

namespace {
std::string ambiente(const char* nome) {
    const char* v = std::getenv(nome);
    return v ? v : "";
}
} // namespace

int main(int argc, char** argv) {
    if (argc != 4) return static_cast<int>(corvina::Desfecho::Argumentos);
    const corvina::AmbienteDoInstalador a{
        ::getuid(),
        ::getgid(),
        ambiente("CASA"),
        ambiente("PASTA_SEGURA"),
        ambiente("CHAVE"),
        corvina::leVersaoDoPacote(ambiente("VERSAO_INSTALADA")).value_or(corvina::VersaoDoPacote{}),
        {ambiente("INSTALADOR")}};
    return static_cast<int>(corvina::instalaAtualizacao(argv[1], argv[2], argv[3], a));
}

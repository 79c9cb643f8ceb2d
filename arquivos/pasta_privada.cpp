#include "arquivos/pasta_privada.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace corvina {

namespace {
inline constexpr mode_t kSoODono = 0700;
inline constexpr mode_t kOutros = 0077;
} // namespace

bool pastaSoMinha(const std::string& caminho) {
    struct stat st {};
    return !caminho.empty() && ::lstat(caminho.c_str(), &st) == 0 && S_ISDIR(st.st_mode) &&
           st.st_uid == ::geteuid() && (st.st_mode & kOutros) == 0;
}

std::string escolhePastaPrivada(const std::string& temp, const std::string& runtime,
                                const std::string& sistema) {
    if (pastaSoMinha(temp)) return temp;
    if (!runtime.empty()) {
        const std::string nossa = runtime + "/corvina";
        ::mkdir(nossa.c_str(), kSoODono); // an existing one is checked like any other
        if (pastaSoMinha(nossa)) return nossa;
    }
    if (sistema.empty()) return {};
    std::string modelo = sistema + "/corvina-XXXXXX";
    std::vector<char> nome(modelo.begin(), modelo.end());
    nome.push_back('\0');
    if (::mkdtemp(nome.data()) == nullptr) return {}; // made with mode 0700
    return nome.data();
}

} // namespace corvina

#include "players/arquivo_de_ajustes.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "arquivos/arquivo_regular.h"
#include "arquivos/descritor.h"
#include "core/ajustes.h"
#include "players/dobra_nome.h"
#include "players/lugar_do_ajuste.h"

namespace corvina {

namespace {

std::string caminho(const std::string& chave, const std::string& nome) {
    const LugarDoAjuste l = lugarDoAjuste(chave, nome);
    return l.grupo + "/" + l.nome;
}

std::string pastaDe(const std::string& arquivo) {
    const std::size_t barra = arquivo.rfind('/');
    return barra == std::string::npos ? "." : barra == 0 ? "/" : arquivo.substr(0, barra);
}

// Damaged files kept beside the store, the newest first: a file that keeps getting damaged
// can't fill the disk.
inline constexpr int kCopiasDanificadas = 3;

std::string copiaDanificada(const std::string& arquivo, int n) {
    return arquivo + ".danificado" + (n > 1 ? std::to_string(n) : std::string());
}

// Keeps what a person may still recover under a name of its own; the oldest of the copies
// already kept makes room.
bool poeDeLado(const std::string& arquivo) {
    ::unlink(copiaDanificada(arquivo, kCopiasDanificadas).c_str());
    for (int n = kCopiasDanificadas - 1; n >= 1; --n)
        ::rename(copiaDanificada(arquivo, n).c_str(), copiaDanificada(arquivo, n + 1).c_str());
    const std::string destino = copiaDanificada(arquivo, 1);
    if (::rename(arquivo.c_str(), destino.c_str()) != 0) return false;
    std::fprintf(stderr, "corvina: %s could not be read as settings; it was kept as %s\n",
                 arquivo.c_str(), destino.c_str());
    return true;
}

// Two copies of the game write one after the other. The kernel lets go of the lock with the
// process that held it, so a crash leaves no lock behind; a lock held too long is passed over
// (each write is whole anyway).
class Trava {
  public:
    explicit Trava(const std::string& arquivo)
        : fd_(::open((arquivo + ".lock").c_str(),
                     O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600)) {
        using namespace std::chrono;
        const auto limite = steady_clock::now() + seconds(2);
        while (fd_ && ::flock(fd_.fd(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
               steady_clock::now() < limite)
            std::this_thread::sleep_for(milliseconds(10));
    }

  private:
    Descritor fd_; // closing it lets go of the lock
};

bool escreveTudo(int fd, const std::string& texto) {
    for (std::size_t feito = 0; feito < texto.size();) {
        const ssize_t n = ::write(fd, texto.data() + feito, texto.size() - feito);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        feito += static_cast<std::size_t>(n);
    }
    return true;
}

} // namespace

ArquivoDeAjustes::ArquivoDeAjustes(std::string arquivo) : arquivo_(std::move(arquivo)) {
    Identidade id;
    switch (leDoDisco(alvo(), valores_, id)) {
    case Leitura::Lida:
        lida_ = id;
        break;
    case Leitura::Ausente:
        break;
    case Leitura::Danificada:
        if (poeDeLado(alvo())) break;
        [[fallthrough]];
    case Leitura::NaoRegular:
    case Leitura::Ilegivel:
        std::fprintf(stderr, "corvina: %s can't be used; settings last for this run only\n",
                     arquivo_.c_str());
        persistente_ = false;
        break;
    }
}

ArquivoDeAjustes::~ArquivoDeAjustes() {
    salva();
}

std::string ArquivoDeAjustes::alvo() const {
    char resolvido[PATH_MAX];
    struct stat st {};
    if (::lstat(arquivo_.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return arquivo_;
    if (::realpath(arquivo_.c_str(), resolvido)) return resolvido;
    // A link to a file not made yet: the file is made where the link points.
    const ssize_t n = ::readlink(arquivo_.c_str(), resolvido, sizeof resolvido - 1);
    if (n <= 0) return arquivo_;
    const std::string destino(resolvido, static_cast<std::size_t>(n));
    return destino.front() == '/' ? destino : pastaDe(arquivo_) + "/" + destino;
}

ArquivoDeAjustes::Leitura ArquivoDeAjustes::leDoDisco(const std::string& alvo, ValoresIni& valores,
                                                      Identidade& id) const {
    const ArquivoLido lido = leArquivoRegular(alvo, kMaiorArquivoDeAjustes);
    switch (lido.situacao) {
    case SituacaoDoArquivo::Ausente:
        return Leitura::Ausente;
    case SituacaoDoArquivo::NaoRegular:
        return Leitura::NaoRegular;
    case SituacaoDoArquivo::Ilegivel:
        return Leitura::Ilegivel;
    case SituacaoDoArquivo::Grande:
        return Leitura::Danificada;
    case SituacaoDoArquivo::Lido:
        break;
    }
    if (!pareceIni(lido.conteudo)) return Leitura::Danificada;
    id = lido.identidade;
    valores.clear();
    for (auto& [chave, valor] : leIni(lido.conteudo))
        if (!valor.empty()) valores[chaveCanonica(chave)] = std::move(valor);
    return Leitura::Lida;
}

std::string ArquivoDeAjustes::le(const std::string& chave, const std::string& nome,
                                 const std::string& padrao) {
    const auto it = valores_.find(caminho(chave, nome));
    return it == valores_.end() ? padraoDeLeitura(padrao) : it->second;
}

bool ArquivoDeAjustes::grava(const std::string& chave, const std::string& nome,
                             const std::string& valor) {
    const std::string c = caminho(chave, nome);
    // An empty value reads as absent: it is taken out rather than kept as an empty line.
    if (valor.empty()) {
        valores_.erase(c);
        mudancas_[c] = std::nullopt;
    } else {
        valores_[c] = valor;
        mudancas_[c] = valor;
    }
    return lote_ > 0 || escreve();
}

void ArquivoDeAjustes::fechaLote() {
    if (lote_ > 0 && --lote_ == 0) escreve();
}

bool ArquivoDeAjustes::salva() {
    return escreve();
}

bool ArquivoDeAjustes::escreve() {
    if (mudancas_.empty() || !persistente_) return true;
    const std::string destino = alvo();
    const Trava trava(destino);
    struct stat st {};
    const bool existe = ::stat(destino.c_str(), &st) == 0;
    if (existe && !S_ISREG(st.st_mode)) {
        // A pipe or a device put at its name would hold the writing up for ever.
        std::fprintf(stderr,
                     "corvina: %s is no longer a regular file; settings last for this run only\n",
                     arquivo_.c_str());
        persistente_ = false;
        return true;
    }
    if (existe &&
        (!lida_ || !(*lida_ == Identidade{st.st_dev, st.st_ino, st.st_size, st.st_mtim}))) {
        // Changed under the game: what the other hand wrote stays, our changes go over it.
        ValoresIni doDisco;
        Identidade id;
        const Leitura l = leDoDisco(destino, doDisco, id);
        if (l == Leitura::Lida) {
            for (const auto& [chave, valor] : mudancas_)
                if (valor)
                    doDisco[chave] = *valor;
                else
                    doDisco.erase(chave);
            valores_ = std::move(doDisco);
        } else if (l == Leitura::Danificada) {
            poeDeLado(destino);
        }
    }
    const std::string texto = escreveIni(valores_);
    if (texto.size() > kMaiorArquivoDeAjustes) return falha("would outgrow what can be read");

    std::string temporario = destino + ".XXXXXX";
    const Descritor d{::mkostemp(temporario.data(), O_CLOEXEC)};
    if (d.fd() < 0) return falha(std::strerror(errno));
    const bool gravado = escreveTudo(d.fd(), texto) && ::fsync(d.fd()) == 0;
    const int erro = errno;
    if (!gravado || ::rename(temporario.c_str(), destino.c_str()) != 0) {
        ::unlink(temporario.c_str());
        return falha(std::strerror(gravado ? errno : erro));
    }
    const Descritor pasta{::open(pastaDe(destino).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (pasta.fd() >= 0) ::fsync(pasta.fd());
    if (::stat(destino.c_str(), &st) == 0)
        lida_ = Identidade{st.st_dev, st.st_ino, st.st_size, st.st_mtim};
    mudancas_.clear();
    return true;
}

bool ArquivoDeAjustes::falha(const char* motivo) {
    if (!avisado_) {
        avisado_ = true;
        std::fprintf(stderr, "corvina: %s could not be written (%s); kept to be written later\n",
                     arquivo_.c_str(), motivo);
        if (aoFalhar_) aoFalhar_();
    }
    return false;
}

std::vector<std::pair<std::string, std::string>>
ArquivoDeAjustes::valoresDosJogadores(std::string_view nome) const {
    static constexpr std::string_view kJogadores = "jogadores/";
    const std::string fim = "/" + codifica(dobraNome(nome));
    std::vector<std::pair<std::string, std::string>> achados;
    for (const auto& [chave, valor] : valores_) {
        if (chave.size() <= kJogadores.size() + fim.size() || chave.rfind(kJogadores, 0) != 0 ||
            chave.compare(chave.size() - fim.size(), fim.size(), fim) != 0)
            continue;
        const std::string_view grupo(chave.data() + kJogadores.size(),
                                     chave.size() - kJogadores.size() - fim.size());
        if (grupo.find('/') == std::string_view::npos)
            achados.emplace_back(decodifica(grupo), valor);
    }
    return achados;
}

} // namespace corvina

#pragma once
// Reading a small data file without trusting what stands at its path: a pipe, a device or a
// file far larger than its format can hold is not read at all.

#include <cstddef>
#include <ctime>
#include <string>
#include <sys/types.h>

namespace corvina {

enum class SituacaoDoArquivo { Ausente, Lido, NaoRegular, Grande, Ilegivel };

// Which file was read, as it stood: another file at the same name, or the same one written
// since, differs.
struct IdentidadeDoArquivo {
    dev_t dispositivo = 0;
    ino_t inode = 0;
    off_t tamanho = -1;
    timespec modificado{};
    bool operator==(const IdentidadeDoArquivo& o) const {
        return dispositivo == o.dispositivo && inode == o.inode && tamanho == o.tamanho &&
               modificado.tv_sec == o.modificado.tv_sec &&
               modificado.tv_nsec == o.modificado.tv_nsec;
    }
};

struct ArquivoLido {
    SituacaoDoArquivo situacao = SituacaoDoArquivo::Ausente;
    std::string conteudo;
    IdentidadeDoArquivo identidade; // of a regular file
};

// Opens without waiting (a pipe with no writer can't hold it up), and reads only a regular
// file of at most `limite` bytes.
ArquivoLido leArquivoRegular(const std::string& caminho, std::size_t limite);

// Writes a whole regular file, or creates it; never writes into a pipe or a device.
bool gravaArquivoRegular(const std::string& caminho, const std::string& conteudo);

} // namespace corvina

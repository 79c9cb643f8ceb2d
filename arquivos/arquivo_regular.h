#pragma once
// Reading a small data file without trusting what stands at its path: a pipe, a device or a
// file far larger than its format can hold is not read at all.

#include <cstddef>
#include <string>

namespace corvina {

enum class SituacaoDoArquivo { Ausente, Lido, NaoRegular, Grande, Ilegivel };

struct ArquivoLido {
    SituacaoDoArquivo situacao = SituacaoDoArquivo::Ausente;
    std::string conteudo;
};

// Opens without waiting (a pipe with no writer can't hold it up), and reads only a regular
// file of at most `limite` bytes.
ArquivoLido leArquivoRegular(const std::string& caminho, std::size_t limite);

// Writes a whole regular file, or creates it; never writes into a pipe or a device.
bool gravaArquivoRegular(const std::string& caminho, const std::string& conteudo);

} // namespace corvina

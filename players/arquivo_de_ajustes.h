#pragma once
// The per-user settings file: the options, the list of players and their records, as text
// values under keys. Held in memory and written whole by our own hand, so that nothing stored
// is ever dropped: not by a file edited under the running game, another copy of the game, a
// full disk or a write that the reader would refuse.

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "arquivos/arquivo_regular.h"
#include "core/armazem.h"
#include "players/ini.h"

namespace corvina {

// What the reader takes, and so what the writer may write.
inline constexpr std::size_t kMaiorArquivoDeAjustes = 1024 * 1024;

class ArquivoDeAjustes : public Armazem {
  public:
    // A file that is not a regular one, or can't be read, is left alone and the settings last
    // for this run only; one too large or damaged to be settings is moved aside (".danificado",
    // the three newest kept) and a new one begun. A link is followed, and written through.
    explicit ArquivoDeAjustes(std::string arquivo);
    ~ArquivoDeAjustes() override; // writes what is still pending
    ArquivoDeAjustes(const ArquivoDeAjustes&) = delete;
    ArquivoDeAjustes& operator=(const ArquivoDeAjustes&) = delete;

    std::string le(const std::string& chave, const std::string& nome,
                   const std::string& padrao) override;
    // False when the value could not reach the disk; it stays for the run and is written
    // with the next write, or by salva.
    bool grava(const std::string& chave, const std::string& nome,
               const std::string& valor) override;
    void abreLote() override { ++lote_; }
    void fechaLote() override;

    // Writes what is pending; true when nothing is left to write.
    bool salva();
    bool pendente() const { return !mudancas_.empty(); }
    // Whether the values reach the disk (false: kept for this run only).
    bool persistente() const { return persistente_; }
    // Called at the first write that fails, once.
    void aoFalhar(std::function<void()> aviso) { aoFalhar_ = std::move(aviso); }

    // Every player's value of that name: the player's name as folded for keys, and the value.
    std::vector<std::pair<std::string, std::string>>
    valoresDosJogadores(std::string_view nome) const;

  private:
    using Identidade = IdentidadeDoArquivo;
    enum class Leitura { Ausente, Lida, NaoRegular, Danificada, Ilegivel };

    Leitura leDoDisco(const std::string& alvo, ValoresIni& valores, Identidade& id) const;
    std::string alvo() const; // the file itself, or what a link at its name points to
    bool escreve();
    bool falha(const char* motivo);

    std::string arquivo_;
    ValoresIni valores_;                                         // by canonical key
    std::map<std::string, std::optional<std::string>> mudancas_; // not yet on the disk
    std::optional<Identidade> lida_;                             // the file as last read or written
    bool persistente_ = true;
    bool avisado_ = false;
    int lote_ = 0;
    std::function<void()> aoFalhar_;
};

} // namespace corvina

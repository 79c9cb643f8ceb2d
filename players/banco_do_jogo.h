#pragma once
// The game's own database: what the game keeps beyond the settings store, each player's history
// of matches and the record a match's end owes the store until the store has it. One SQLite
// file in the player's data folder (write-ahead log, a version of its schema, one transaction
// for each change), so that a kill at any moment leaves it as it was or as it became.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/recorde.h"
#include "players/historicos.h"

struct sqlite3;

namespace corvina {

// The reviews kept for each player: the last matches, within a size.
inline constexpr int kRevisoesPorJogador = 10;
inline constexpr std::size_t kBytesDeRevisaoPorJogador = 1024 * 1024;

struct RecordePendente {
    long id = 0;
    std::string nome;
    Recorde recorde;
};

class BancoDoJogo : public Historicos {
  public:
    // ":memory:" keeps it for the run. A file that is damaged or not a database is set aside
    // (".danificado") and a new one begun; one that isn't a regular file, or a newer version's,
    // is left alone and the data last for the run.
    explicit BancoDoJogo(const std::string& arquivo);
    ~BancoDoJogo() override;
    BancoDoJogo(const BancoDoJogo&) = delete;
    BancoDoJogo& operator=(const BancoDoJogo&) = delete;

    HistoricoDePartidas historico(const std::string& nome) override;
    void apagaHistorico(const std::string& nome) override;
    void zeraHistoricos(const std::vector<std::string>& nomes) override;

    // The match in the player's history and, when given, the record the store is to hold, as
    // pending: one transaction. The id of the pending record, or 0. A match that can't be
    // written is kept for the next chance (salva); nothing is dropped.
    // The match kept for playing on ends with it, and its hands join the player's reviews.
    long registraPartida(const std::string& nome, const PartidaDoHistorico& p,
                         const std::optional<Recorde>& recorde, std::string_view maos = {});
    std::vector<RecordePendente> pendentes();
    void concluiPendente(long id);

    // A history kept elsewhere before, moved in unless the player already has one here; a text
    // that can't be read is kept aside. False when it could not be written.
    bool importaHistorico(const std::string& nome, std::string_view partidas,
                          std::string_view antigas);
    // A copy of a damaged history, kept for a person to recover (the last one a player's).
    bool guardaDanificado(const std::string& nome, std::string_view partidas,
                          std::string_view antigas);

    // The match a player left in its middle, as text; one per player, replaced at each rest.
    std::optional<std::string> partidaGuardada(const std::string& nome);
    bool guardaPartida(const std::string& nome, std::string_view texto);
    void esquecePartida(const std::string& nome);
    // A kept match that can't be played on, moved aside for a person (the last one a player's).
    void poePartidaDeLado(const std::string& nome, std::string_view texto);
    // The player's last matches with their hands, the newest first.
    std::vector<RevisaoDePartida> revisoes(const std::string& nome) override;

    // Writes the matches that could not be written before; true when none is left.
    bool salva();
    bool persistente() const { return persistente_; }
    // Called at the first write that fails, once.
    void aoFalhar(std::function<void()> aviso) { aoFalhar_ = std::move(aviso); }

  private:
    enum class Abertura { Aberto, Danificado, Inacessivel };
    Abertura abre(const std::string& arquivo);
    bool executa(const char* sql);
    bool guardaRevisao(const std::string& chave, const PartidaDoHistorico& p,
                       std::string_view maos);
    void desfaz(); // the transaction open, if any
    bool falha(const char* onde);
    bool gravaHistorico(const std::string& chave, const HistoricoDePartidas& h);
    std::optional<HistoricoDePartidas> leDoBanco(const std::string& chave);

    struct PartidaNaFila {
        std::string nome;
        PartidaDoHistorico partida;
    };

    sqlite3* db_ = nullptr;
    bool persistente_ = true;
    bool avisado_ = false;
    std::vector<PartidaNaFila> fila_;
    std::function<void()> aoFalhar_;
};

} // namespace corvina

#include "players/banco_do_jogo.h"

#include <cerrno>
#include <cstdio>
#include <sqlite3.h>
#include <sys/stat.h>

#include "players/comando_sql.h"
#include "players/dobra_nome.h"

namespace corvina {

namespace {

inline constexpr int kVersaoDoEsquema = 1;

inline constexpr const char* kEsquema = R"(
CREATE TABLE IF NOT EXISTS versao (numero INTEGER NOT NULL);
CREATE TABLE IF NOT EXISTS historicos (
  jogador TEXT PRIMARY KEY, partidas TEXT NOT NULL, antigas TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS historicos_danificados (
  jogador TEXT PRIMARY KEY, partidas BLOB, antigas BLOB);
CREATE TABLE IF NOT EXISTS recordes_pendentes (
  id INTEGER PRIMARY KEY, nome TEXT NOT NULL,
  vitorias INTEGER NOT NULL, derrotas INTEGER NOT NULL, saldo INTEGER NOT NULL);
CREATE TABLE IF NOT EXISTS partidas_guardadas (jogador TEXT PRIMARY KEY, texto TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS partidas_postas_de_lado (jogador TEXT PRIMARY KEY, texto BLOB);
CREATE TABLE IF NOT EXISTS revisoes (
  id INTEGER PRIMARY KEY, jogador TEXT NOT NULL, dia INTEGER NOT NULL, nivel TEXT NOT NULL,
  venceu INTEGER NOT NULL, ganhas INTEGER NOT NULL, perdidas INTEGER NOT NULL,
  maos TEXT NOT NULL);
)";

bool contagem(long n) {
    return n >= 0 && n <= kMaiorContagem;
}

} // namespace

BancoDoJogo::BancoDoJogo(const std::string& arquivo) {
    struct stat st {};
    // A link, a pipe or a device at its name is never opened.
    Abertura a = arquivo != ":memory:" && ::lstat(arquivo.c_str(), &st) == 0 && !S_ISREG(st.st_mode)
                     ? Abertura::Inacessivel
                     : abre(arquivo);
    if (a == Abertura::Danificado) {
        // Not a database, or not ours: kept for a person to recover, and begun anew.
        sqlite3_close(db_);
        db_ = nullptr;
        const std::string lado = arquivo + ".danificado";
        for (const char* parte : {"", "-wal", "-shm"})
            std::rename((arquivo + parte).c_str(), (lado + parte).c_str());
        std::fprintf(stderr, "corvina: %s could not be read as the game's data; kept as %s\n",
                     arquivo.c_str(), lado.c_str());
        a = abre(arquivo);
    }
    if (a == Abertura::Aberto) return;
    // Busy past waiting, out of reach, or another version's: left as it is.
    std::fprintf(stderr, "corvina: %s can't be used; the game's data last for this run only\n",
                 arquivo.c_str());
    sqlite3_close(db_);
    db_ = nullptr;
    persistente_ = false;
    abre(":memory:");
}

BancoDoJogo::~BancoDoJogo() {
    salva();
    sqlite3_close(db_);
}

BancoDoJogo::Abertura BancoDoJogo::abre(const std::string& arquivo) {
    if (sqlite3_open_v2(arquivo.c_str(), &db_,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOFOLLOW,
                        nullptr) != SQLITE_OK)
        return Abertura::Inacessivel;
    sqlite3_busy_timeout(db_, 3000);
    const auto erro = [this] {
        const int e = sqlite3_errcode(db_);
        desfaz();
        return e == SQLITE_NOTADB || e == SQLITE_CORRUPT ? Abertura::Danificado
                                                         : Abertura::Inacessivel;
    };
    if (!executa("PRAGMA journal_mode=WAL") || !executa("PRAGMA synchronous=FULL")) return erro();
    {
        ComandoSql checa(db_, "PRAGMA quick_check");
        const int passo = checa.passo();
        if (passo != SQLITE_ROW) return erro();
        if (checa.textoDa(0) != "ok") return Abertura::Danificado;
    }
    if (!executa("BEGIN IMMEDIATE") || !executa(kEsquema)) return erro();
    // Tables of the same names but other columns are not ours.
    for (const char* forma : {"SELECT jogador, partidas, antigas FROM historicos",
                              "SELECT jogador, partidas, antigas FROM historicos_danificados",
                              "SELECT id, nome, vitorias, derrotas, saldo FROM recordes_pendentes",
                              "SELECT jogador, texto FROM partidas_guardadas",
                              "SELECT jogador, texto FROM partidas_postas_de_lado",
                              "SELECT id, jogador, dia, nivel, venceu, ganhas, perdidas, maos "
                              "FROM revisoes"})
        if (ComandoSql c(db_, forma); !c.preparado()) {
            desfaz();
            return Abertura::Danificado;
        }
    ComandoSql versao(db_, "SELECT max(numero), count(*) FROM versao");
    if (versao.passo() != SQLITE_ROW) return erro();
    const long numero = versao.numeroDa(0), linhas = versao.numeroDa(1);
    if (linhas == 0) {
        ComandoSql poe(db_, "INSERT INTO versao (numero) VALUES (?)");
        if (!poe.numero(1, kVersaoDoEsquema).feito()) return erro();
    } else if (numero != kVersaoDoEsquema) {
        desfaz();
        std::fprintf(stderr, "corvina: %s is of another version of the game\n", arquivo.c_str());
        return Abertura::Inacessivel;
    }
    return executa("COMMIT") ? Abertura::Aberto : erro();
}

void BancoDoJogo::desfaz() {
    // A failed commit may have rolled back already; a second rollback would only hide why.
    if (!sqlite3_get_autocommit(db_)) executa("ROLLBACK");
}

bool BancoDoJogo::executa(const char* sql) {
    return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool BancoDoJogo::falha(const char* onde) {
    if (!avisado_) {
        avisado_ = true;
        std::fprintf(stderr,
                     "corvina: the game's data could not be written (%s: %s); kept to be "
                     "written later\n",
                     onde, sqlite3_errmsg(db_));
        if (aoFalhar_) aoFalhar_();
    }
    return false;
}

std::optional<HistoricoDePartidas> BancoDoJogo::leDoBanco(const std::string& chave) {
    ComandoSql le(db_, "SELECT partidas, antigas FROM historicos WHERE jogador = ?");
    le.texto(1, chave);
    if (le.passo() != SQLITE_ROW) return HistoricoDePartidas{};
    if (auto h = leHistorico(le.textoDa(0), le.textoDa(1))) return h;
    const std::string partidas(le.textoDa(0));
    const std::string antigas(le.textoDa(1));
    std::fprintf(stderr, "corvina: a damaged history of matches was set aside\n");
    ComandoSql tira(db_, "DELETE FROM historicos WHERE jogador = ?");
    if (!guardaDanificado(chave, partidas, antigas) || !tira.texto(1, chave).feito())
        falha("set aside");
    return std::nullopt;
}

HistoricoDePartidas BancoDoJogo::historico(const std::string& nome) {
    HistoricoDePartidas h = leDoBanco(dobraNome(nome)).value_or(HistoricoDePartidas{});
    for (const PartidaNaFila& f : fila_)
        if (dobraNome(f.nome) == dobraNome(nome)) h.registra(f.partida);
    return h;
}

bool BancoDoJogo::gravaHistorico(const std::string& chave, const HistoricoDePartidas& h) {
    const TextoDoHistorico t = escreveHistorico(h);
    ComandoSql grava(db_, "INSERT OR REPLACE INTO historicos VALUES (?, ?, ?)");
    return grava.texto(1, chave).texto(2, t.partidas).texto(3, t.antigas).feito();
}

void BancoDoJogo::apagaHistorico(const std::string& nome) {
    zeraHistoricos({nome});
}

void BancoDoJogo::zeraHistoricos(const std::vector<std::string>& nomes) {
    if (!executa("BEGIN IMMEDIATE")) {
        falha("clear");
        return;
    }
    bool ok = true;
    for (const std::string& nome : nomes) {
        const std::string chave = dobraNome(nome);
        std::erase_if(fila_, [&](const PartidaNaFila& f) { return dobraNome(f.nome) == chave; });
        for (const char* sql : {"DELETE FROM historicos WHERE jogador = ?",
                                "DELETE FROM historicos_danificados WHERE jogador = ?"}) {
            ComandoSql apaga(db_, sql);
            ok = ok && apaga.texto(1, chave).feito();
        }
    }
    if (!ok || !executa("COMMIT")) {
        desfaz();
        falha("clear");
    }
}

long BancoDoJogo::registraPartida(const std::string& nome, const PartidaDoHistorico& p,
                                  const std::optional<Recorde>& recorde, std::string_view maos) {
    // Matches waiting from before go first: the history keeps the order they were played in.
    if (salva() && executa("BEGIN IMMEDIATE")) {
        const std::string chave = dobraNome(nome);
        HistoricoDePartidas h = leDoBanco(chave).value_or(HistoricoDePartidas{});
        h.registra(p);
        bool ok = gravaHistorico(chave, h);
        if (ok && !maos.empty()) ok = guardaRevisao(chave, p, maos);
        if (ok) {
            ComandoSql tira(db_, "DELETE FROM partidas_guardadas WHERE jogador = ?");
            ok = tira.texto(1, chave).feito();
        }
        if (ok && recorde) {
            ComandoSql poe(db_, "INSERT INTO recordes_pendentes (nome, vitorias, derrotas, saldo) "
                                "VALUES (?, ?, ?, ?)");
            ok = poe.texto(1, nome)
                     .numero(2, recorde->vitorias)
                     .numero(3, recorde->derrotas)
                     .numero(4, recorde->saldo)
                     .feito();
        }
        const long id = recorde ? static_cast<long>(sqlite3_last_insert_rowid(db_)) : 0;
        if (ok && executa("COMMIT")) return id;
        desfaz();
    }
    falha("match");
    fila_.push_back({nome, p});
    return 0;
}

bool BancoDoJogo::salva() {
    while (!fila_.empty()) {
        const PartidaNaFila f = fila_.front();
        const std::string chave = dobraNome(f.nome);
        if (!executa("BEGIN IMMEDIATE")) return falha("history");
        HistoricoDePartidas h = leDoBanco(chave).value_or(HistoricoDePartidas{});
        h.registra(f.partida);
        if (!gravaHistorico(chave, h) || !executa("COMMIT")) {
            desfaz();
            return falha("history");
        }
        fila_.erase(fila_.begin());
    }
    return true;
}

std::vector<RecordePendente> BancoDoJogo::pendentes() {
    std::vector<RecordePendente> lista;
    ComandoSql le(db_, "SELECT id, nome, vitorias, derrotas, saldo FROM recordes_pendentes "
                       "ORDER BY id");
    while (le.passo() == SQLITE_ROW) {
        RecordePendente r{le.numeroDa(0),
                          std::string(le.textoDa(1)),
                          {le.numeroDa(2), le.numeroDa(3), le.numeroDa(4)}};
        if (contagem(r.recorde.vitorias) && contagem(r.recorde.derrotas) &&
            r.recorde.saldo >= -kMaiorContagem && r.recorde.saldo <= kMaiorContagem &&
            !r.nome.empty())
            lista.push_back(std::move(r));
        else
            std::fprintf(stderr, "corvina: a damaged record of a match's end was passed over\n");
    }
    return lista;
}

void BancoDoJogo::concluiPendente(long id) {
    ComandoSql tira(db_, "DELETE FROM recordes_pendentes WHERE id = ?");
    if (!tira.numero(1, id).feito()) falha("record");
}

bool BancoDoJogo::importaHistorico(const std::string& nome, std::string_view partidas,
                                   std::string_view antigas) {
    const std::string chave = dobraNome(nome);
    if (!executa("BEGIN IMMEDIATE")) return falha("import");
    ComandoSql ha(db_, "SELECT 1 FROM historicos WHERE jogador = ?");
    const int tem = ha.texto(1, chave).passo();
    bool ok = tem == SQLITE_ROW || tem == SQLITE_DONE;
    if (ok && tem == SQLITE_DONE) {
        if (const auto h = leHistorico(partidas, antigas)) {
            ok = gravaHistorico(chave, *h);
        } else {
            std::fprintf(stderr, "corvina: a damaged history of matches was set aside\n");
            ok = guardaDanificado(chave, partidas, antigas);
        }
    }
    if (!ok || !executa("COMMIT")) {
        desfaz();
        return falha("import");
    }
    return true;
}

bool BancoDoJogo::guardaDanificado(const std::string& nome, std::string_view partidas,
                                   std::string_view antigas) {
    ComandoSql guarda(db_, "INSERT OR REPLACE INTO historicos_danificados VALUES (?, ?, ?)");
    return guarda.texto(1, dobraNome(nome)).texto(2, partidas).texto(3, antigas).feito() ||
           falha("set aside");
}

} // namespace corvina

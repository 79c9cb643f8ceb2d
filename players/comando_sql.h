#pragma once
// One prepared SQLite statement, finalized with its scope; text and numbers bound by place.

#include <sqlite3.h>
#include <string>
#include <string_view>

namespace corvina {

// One prepared statement, finalized with its scope.
class ComandoSql {
  public:
    ComandoSql(sqlite3* db, const char* sql) {
        if (db) sqlite3_prepare_v2(db, sql, -1, &st_, nullptr);
    }
    ~ComandoSql() { sqlite3_finalize(st_); }
    ComandoSql(const ComandoSql&) = delete;
    ComandoSql& operator=(const ComandoSql&) = delete;

    ComandoSql& texto(int i, std::string_view t) {
        sqlite3_bind_text(st_, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
        return *this;
    }
    ComandoSql& numero(int i, long n) {
        sqlite3_bind_int64(st_, i, n);
        return *this;
    }
    bool preparado() const { return st_ != nullptr; }
    int passo() { return st_ ? sqlite3_step(st_) : SQLITE_ERROR; }
    bool feito() { return passo() == SQLITE_DONE; }
    std::string_view textoDa(int c) {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_blob(st_, c));
        return t ? std::string_view(t, static_cast<std::size_t>(sqlite3_column_bytes(st_, c)))
                 : std::string_view();
    }
    long numeroDa(int c) { return static_cast<long>(sqlite3_column_int64(st_, c)); }

  private:
    sqlite3_stmt* st_ = nullptr;
};

} // namespace corvina

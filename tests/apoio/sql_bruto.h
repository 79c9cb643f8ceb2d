#pragma once
// One statement run on a database file as another program would, bypassing the game: the
// first column of its first row, "" when there is none. At most two texts are bound.

#include <sqlite3.h>
#include <string>

namespace corvina::teste {

inline std::string sqlBruto(const std::string& db, const char* comando, const std::string& a = "",
                            const std::string& b = "") {
    sqlite3* bruto = nullptr;
    sqlite3_stmt* st = nullptr;
    sqlite3_open(db.c_str(), &bruto);
    sqlite3_prepare_v2(bruto, comando, -1, &st, nullptr);
    sqlite3_bind_text(st, 1, a.data(), static_cast<int>(a.size()), SQLITE_TRANSIENT);
    sqlite3_bind_text(st, 2, b.data(), static_cast<int>(b.size()), SQLITE_TRANSIENT);
    const bool linha = sqlite3_step(st) == SQLITE_ROW && sqlite3_column_text(st, 0);
    std::string lido = linha ? reinterpret_cast<const char*>(sqlite3_column_text(st, 0)) : "";
    sqlite3_finalize(st);
    sqlite3_close(bruto);
    return lido;
}

} // namespace corvina::teste

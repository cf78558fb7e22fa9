#include "reliability/DataFileState.h"

#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace
{

struct Finalizer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

Statement prepare(sqlite3* database, const std::string& sql)
{
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
    }
    return Statement(prepared);
}

/// The rows, a line each, with values as SQL would write them.
std::string rows(sqlite3* database, const std::string& sql)
{
    const Statement statement = prepare(database, sql);
    std::string text;
    int code = sqlite3_step(statement.get());
    for (; code == SQLITE_ROW; code = sqlite3_step(statement.get())) {
        for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
            static constexpr const char* Types[] = {"", "integer", "float", "text", "blob", "null"};
            text += Types[sqlite3_column_type(statement.get(), column)];
            text += ' ';
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), column));
            if (size != 0) {
                text.append(static_cast<const char*>(sqlite3_column_blob(statement.get(), column)), size);
            }
            text += '|';
        }
        text += '\n';
    }
    if (code != SQLITE_DONE) {
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
    }
    return text;
}

} // namespace

std::string dataFileState(const std::string& folder, const std::string& name)
{
    const std::string path = folder + '/' + name;
    if (!std::filesystem::exists(path)) {
        throw std::runtime_error("there is no " + name);
    }
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, Finalizer> database(opened);
    if (code != SQLITE_OK) {
        throw std::runtime_error(std::string("open: ") + sqlite3_errmsg(opened));
    }
    const std::string verdict = rows(opened, "pragma integrity_check");
    if (verdict != "text ok|\n") {
        throw std::runtime_error("damaged: " + verdict);
    }
    std::string state;
    for (const char* table : {"settings", "categories", "tasks", "sqlite_sequence", "sqlite_schema"}) {
        state += std::string(table) + '\n' + rows(opened, std::string("select * from ") + table);
    }
    // Files of earlier versions do not have them.
    for (const std::string table : {"task_origins", "repeats"}) {
        if (!rows(opened, "select 1 from sqlite_schema where name='" + table + "'").empty()) {
            state += table + '\n' + rows(opened, "select * from " + table);
        }
    }
    return state;
}

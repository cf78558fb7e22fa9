#include "store/Hardening.h"

#include "system/FileAccess.h"

#include <QUrl>
#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <string_view>
#include <utility>

namespace
{

constexpr int LargestStatement = 64 * 1024 * 1024;

constexpr std::array<std::pair<int, int>, 9> Settings{{{SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}, {SQLITE_DBCONFIG_DQS_DML, 0}, {SQLITE_DBCONFIG_DQS_DDL, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, {SQLITE_DBCONFIG_ENABLE_VIEW, 0}, {SQLITE_DBCONFIG_ENABLE_FKEY, 0},
    {SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0}, {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}}};

constexpr std::array<std::pair<int, int>, 9> Limits{{{SQLITE_LIMIT_LENGTH, LargestStatement},
    {SQLITE_LIMIT_SQL_LENGTH, LargestStatement}, {SQLITE_LIMIT_ATTACHED, 0}, {SQLITE_LIMIT_COLUMN, 100},
    {SQLITE_LIMIT_EXPR_DEPTH, 100}, {SQLITE_LIMIT_COMPOUND_SELECT, 10}, {SQLITE_LIMIT_VDBE_OP, 25000},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 1000}, {SQLITE_LIMIT_TRIGGER_DEPTH, 1}}};

/// Whether the query returns a row. After an error `failure` is SQLite's result code and the answer false.
bool yieldsRow(sqlite3* database, const char* query, std::string_view argument, int& failure)
{
    sqlite3_stmt* statement = nullptr;
    failure = sqlite3_prepare_v2(database, query, -1, &statement, nullptr);
    if (failure != SQLITE_OK) {
        return false;
    }
    if (!argument.empty()) {
        sqlite3_bind_text(statement, 1, argument.data(), static_cast<int>(argument.size()), SQLITE_STATIC);
    }
    const int code = sqlite3_step(statement);
    failure = sqlite3_finalize(statement);
    return code == SQLITE_ROW;
}

} // namespace

int openDatabase(const QString& file, sqlite3*& database, bool isImmutable)
{
    [[maybe_unused]] static const int uncounted = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    const QByteArray name =
        isImmutable ? QUrl::fromLocalFile(file).toEncoded() + "?immutable=1" : pathInC(file);
    const int flags = isImmutable ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE;
    return sqlite3_open_v2(name.constData(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
}

int hardenConnection(sqlite3* database)
{
    for (const auto& [setting, value] : Settings) {
        if (const int code = sqlite3_db_config(database, setting, value, nullptr); code != SQLITE_OK) {
            return code;
        }
    }
    for (const auto& [limit, value] : Limits) {
        sqlite3_limit(database, limit, value);
    }
    return sqlite3_drop_modules(database, nullptr);
}

int emptyJournals(sqlite3* database)
{
    int failure = SQLITE_OK;
    const bool hasJournal =
        yieldsRow(database, "SELECT 1 FROM pragma_journal_mode WHERE journal_mode <> 'wal'", {}, failure);
    return hasJournal ? sqlite3_exec(database, "PRAGMA journal_mode=TRUNCATE", nullptr, nullptr, nullptr)
                      : failure;
}

bool mayDropRecords(sqlite3* database, const std::string& table, int& failure)
{
    // Only a constraint of the table itself can say what happens to duplicates; a separate index just
    // refuses them. The index of such a constraint has no SQL text (or the table is WITHOUT ROWID). Where
    // the schema holds neither, as in our files, pragma_index_list need not be asked, which takes as long
    // as the rest of an insert.
    if (!yieldsRow(database,
            "SELECT 1 FROM sqlite_schema WHERE typeof(sql) <> 'text' OR sql LIKE '%without%rowid%'", {},
            failure)) {
        return false;
    }
    return yieldsRow(database, "SELECT 1 FROM pragma_index_list(?1) WHERE origin <> 'c'", table, failure);
}

bool isReadingPragma(std::string_view name, const char* argument)
{
    constexpr std::array<std::string_view, 4> OfTheFile{
        "integrity_check", "quick_check", "application_id", "user_version"};
    constexpr std::array<std::string_view, 5> OfATable{
        "table_list", "table_info", "table_xinfo", "index_list", "index_xinfo"};
    return (argument == nullptr && std::find(OfTheFile.begin(), OfTheFile.end(), name) != OfTheFile.end())
        || std::find(OfATable.begin(), OfATable.end(), name) != OfATable.end();
}

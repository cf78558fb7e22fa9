#include "limits/BareEngine.h"

#include <QFile>
#include <QStringList>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace
{

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;
using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

void answerNow(sqlite3_context* context, int, sqlite3_value**)
{
    const auto* now = static_cast<const QByteArray*>(sqlite3_user_data(context));
    sqlite3_result_text(context, now->constData(), static_cast<int>(now->size()), SQLITE_STATIC);
}

void require(bool condition, sqlite3* database)
{
    if (!condition) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

Database opened(const QString& file, QByteArray& now)
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(
        QFile::encodeName(file).constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(handle, sqlite3_close);
    require(code == SQLITE_OK, handle);
    sqlite3_create_function_v2(
        handle, "now", 0, SQLITE_UTF8 | SQLITE_DETERMINISTIC, &now, answerNow, nullptr, nullptr, nullptr);
    return database;
}

Statement prepared(sqlite3* database, const QString& sql)
{
    sqlite3_stmt* statement = nullptr;
    require(sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &statement, nullptr) == SQLITE_OK,
        database);
    return {statement, sqlite3_finalize};
}

/// A sink for what was read, so that the reading is not optimized away.
volatile qint64 readSoFar = 0;

void readRow(sqlite3_stmt* statement, int columns)
{
    qint64 sum = 0;
    for (int column = 0; column < columns; ++column) {
        if (sqlite3_column_type(statement, column) == SQLITE_INTEGER) {
            sum += sqlite3_column_int64(statement, column);
        } else {
            const unsigned char* text = sqlite3_column_text(statement, column);
            sum += sqlite3_column_bytes(statement, column) + (text == nullptr ? 0 : *text);
        }
    }
    readSoFar = readSoFar + sum;
}

} // namespace

int bareScan(const QString& file, const QString& query, const QString& now)
{
    QByteArray nowText = now.toUtf8();
    const Database database = opened(file, nowText);
    const Statement statement = prepared(database.get(), query);
    const int columns = sqlite3_column_count(statement.get());
    int rows = 0;
    int code = sqlite3_step(statement.get());
    for (; code == SQLITE_ROW; code = sqlite3_step(statement.get())) {
        readRow(statement.get(), columns);
        ++rows;
    }
    require(code == SQLITE_DONE, database.get());
    return rows;
}

void bareWrite(const QString& file, const QStringList& statements, const QString& now)
{
    QByteArray nowText = now.toUtf8();
    const Database database = opened(file, nowText);
    require(
        sqlite3_exec(database.get(), "pragma synchronous=extra; begin immediate", nullptr, nullptr, nullptr)
            == SQLITE_OK,
        database.get());
    for (const QString& sql : statements) {
        const Statement statement = prepared(database.get(), sql);
        require(sqlite3_step(statement.get()) == SQLITE_DONE, database.get());
    }
    require(sqlite3_exec(database.get(), "commit", nullptr, nullptr, nullptr) == SQLITE_OK, database.get());
}

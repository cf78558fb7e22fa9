#include "store/ChangeSet.h"

#include <cstring>
#include <memory>
#include <new>

// The header declares the extension only for who asks for it.
#define SQLITE_ENABLE_SESSION 1
#define SQLITE_ENABLE_PREUPDATE_HOOK 1
#include <sqlite3.h>

namespace
{

void requireMemory(int code)
{
    if (code != SQLITE_OK) {
        throw std::bad_alloc();
    }
}

void* bytesOf(const ChangeSet& changes)
{
    // The extension takes what it only reads as not constant.
    return const_cast<char*>(changes.bytes().constData()); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

int sizeOf(const ChangeSet& changes)
{
    return static_cast<int>(changes.bytes().size());
}

ChangeSet taken(int size, void* bytes)
{
    ChangeSet changes(QByteArray(static_cast<const char*>(bytes), size));
    sqlite3_free(bytes);
    return changes;
}

bool areEqual(sqlite3_value* one, sqlite3_value* other)
{
    const int type = sqlite3_value_type(one);
    if (type != sqlite3_value_type(other)) {
        return false;
    }
    if (type == SQLITE_FLOAT) {
        return sqlite3_value_double(one) == sqlite3_value_double(other);
    }
    if (type == SQLITE_INTEGER) {
        return sqlite3_value_int64(one) == sqlite3_value_int64(other);
    }
    const int size = sqlite3_value_bytes(one);
    return size == sqlite3_value_bytes(other)
        && (size == 0
            || std::memcmp(sqlite3_value_blob(one), sqlite3_value_blob(other), static_cast<std::size_t>(size))
                == 0);
}

/// In which columns a row may be another than the one that a change expects.
struct Tolerance {
    sqlite3* database;
    const std::set<std::string>& columns;

    /// `change` is at a row that has other values.
    bool covers(sqlite3_changeset_iter* change) const
    {
        const char* table = nullptr;
        int count = 0;
        int operation = 0;
        int indirect = 0;
        sqlite3changeset_op(change, &table, &count, &operation, &indirect);
        const std::unique_ptr<char, decltype(&sqlite3_free)> statement(
            sqlite3_mprintf("SELECT * FROM \"%w\"", table), sqlite3_free);
        sqlite3_stmt* row = nullptr;
        sqlite3_prepare_v2(database, statement.get(), -1, &row, nullptr);
        bool isCovered = row != nullptr;
        for (int column = 0; isCovered && column < count; ++column) {
            // None for a column that the change leaves alone.
            sqlite3_value* expected = nullptr;
            sqlite3_value* found = nullptr;
            sqlite3changeset_old(change, column, &expected);
            sqlite3changeset_conflict(change, column, &found);
            isCovered = expected == nullptr || areEqual(expected, found)
                || columns.count(sqlite3_column_name(row, column)) > 0;
        }
        sqlite3_finalize(row);
        return isCovered;
    }
};

} // namespace

ChangeSet ChangeSet::inverted() const
{
    int size = 0;
    void* bytes = nullptr;
    requireMemory(sqlite3changeset_invert(sizeOf(*this), bytesOf(*this), &size, &bytes));
    return taken(size, bytes);
}

void ChangeSet::append(const ChangeSet& later)
{
    if (isEmpty()) {
        *this = later;
        return;
    }
    int size = 0;
    void* bytes = nullptr;
    requireMemory(
        sqlite3changeset_concat(sizeOf(*this), bytesOf(*this), sizeOf(later), bytesOf(later), &size, &bytes));
    *this = taken(size, bytes);
}

std::set<std::string> ChangeSet::tables() const
{
    std::set<std::string> tables;
    sqlite3_changeset_iter* iterator = nullptr;
    requireMemory(sqlite3changeset_start(&iterator, sizeOf(*this), bytesOf(*this)));
    while (sqlite3changeset_next(iterator) == SQLITE_ROW) {
        const char* table = nullptr;
        int columns = 0;
        int operation = 0;
        int indirect = 0;
        sqlite3changeset_op(iterator, &table, &columns, &operation, &indirect);
        tables.insert(table);
    }
    sqlite3changeset_finalize(iterator);
    return tables;
}

ChangeRecorder::ChangeRecorder(sqlite3* database)
{
    requireMemory(sqlite3session_create(database, "main", &m_session));
    // All tables.
    requireMemory(sqlite3session_attach(m_session, nullptr));
}

ChangeRecorder::~ChangeRecorder()
{
    sqlite3session_delete(m_session);
}

int ChangeRecorder::read(ChangeSet& changes) const
{
    int size = 0;
    void* bytes = nullptr;
    const int code = sqlite3session_changeset(m_session, &size, &bytes);
    changes = taken(size, bytes);
    return code;
}

int applyChanges(sqlite3* database, const ChangeSet& changes, const std::set<std::string>& tolerated)
{
    Tolerance tolerance{database, tolerated};
    const auto decide = [](void* context, int conflict, sqlite3_changeset_iter* change) {
        return conflict == SQLITE_CHANGESET_DATA && static_cast<const Tolerance*>(context)->covers(change)
            ? SQLITE_CHANGESET_REPLACE
            : SQLITE_CHANGESET_ABORT;
    };
    return sqlite3changeset_apply(database, sizeOf(changes), bytesOf(changes), nullptr, decide, &tolerance);
}

#include "store/RecordSet.h"

#include "store/DatabaseError.h"
#include "store/Session.h"

#include <limits>
#include <sqlite3.h>
#include <utility>

namespace
{

[[noreturn]] void failToRead(const QString& text)
{
    throw DatabaseError(DatabaseError::Kind::Conversion, text);
}

QString quoted(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString columnName(sqlite3_stmt* statement, int field)
{
    const char* table = sqlite3_column_table_name(statement, field);
    const QString column = QString::fromUtf8(sqlite3_column_name(statement, field));
    return table == nullptr ? column : QString::fromUtf8(table) + QLatin1Char('.') + column;
}

bool isSameName(const char* name, std::string_view wanted)
{
    return name != nullptr && std::string_view(name).size() == wanted.size()
        && sqlite3_strnicmp(name, wanted.data(), static_cast<int>(wanted.size())) == 0;
}

bool isNamed(sqlite3_stmt* statement, int field, std::string_view name)
{
    if (isSameName(sqlite3_column_name(statement, field), name)) {
        return true;
    }
    const std::size_t dot = name.find('.');
    return dot != std::string_view::npos
        && isSameName(sqlite3_column_table_name(statement, field), name.substr(0, dot))
        && isSameName(sqlite3_column_origin_name(statement, field), name.substr(dot + 1));
}

template <typename Value> int threeWay(const Value& left, const Value& right)
{
    return left < right ? -1 : right < left ? 1 : 0;
}

/// In the order of SQLite: null, number, text, bytes.
int rankOf(sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return 0;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return 1;
    case SQLITE_TEXT:
        return 2;
    default:
        return 3;
    }
}

std::string_view bytesOf(sqlite3_value* value)
{
    const void* bytes = sqlite3_value_blob(value);
    return {static_cast<const char*>(bytes), static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

} // namespace

RecordSet::RecordSet() = default;
RecordSet::RecordSet(RecordSet&& other) noexcept
    : m_cursor(std::move(other.m_cursor)), m_fieldCount(other.m_fieldCount),
      m_atEnd(std::exchange(other.m_atEnd, true))
{
}

RecordSet& RecordSet::operator=(RecordSet&& other) noexcept
{
    m_cursor = std::move(other.m_cursor);
    m_fieldCount = other.m_fieldCount;
    m_atEnd = std::exchange(other.m_atEnd, true);
    return *this;
}

RecordSet::~RecordSet() = default;

RecordSet::RecordSet(std::unique_ptr<Cursor> cursor) : m_cursor(std::move(cursor))
{
    m_atEnd = !m_cursor->step();
    // Not before the first step: SQLite may have compiled the statement anew for it.
    m_fieldCount = sqlite3_column_count(m_cursor->statement());
}

void RecordSet::moveNext()
{
    if (m_atEnd || m_cursor->statement() == nullptr) {
        failToRead(tr("There is no current record."));
    }
    m_atEnd = true;
    m_atEnd = !m_cursor->step();
}

int RecordSet::field(std::string_view name) const
{
    sqlite3_stmt* statement = m_cursor == nullptr ? nullptr : m_cursor->statement();
    int found = -1;
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        if (!isNamed(statement, i, name)) {
            continue;
        }
        if (found != -1) {
            failToRead(tr("The field name \"%1\" is ambiguous.").arg(quoted(name)));
        }
        found = i;
    }
    if (found == -1) {
        failToRead(tr("There is no field \"%1\".").arg(quoted(name)));
    }
    return found;
}

// sqlite3_column_value() once, then its type and content: three calls to sqlite3_column_...() take three
// times as long. On a connection without mutexes that is safe.
sqlite3_value* RecordSet::value(int field) const
{
    sqlite3_stmt* statement = m_atEnd ? nullptr : m_cursor->statement();
    if (statement == nullptr) [[unlikely]] {
        failToRead(tr("There is no current record."));
    }
    if (field < 0 || field >= m_fieldCount) [[unlikely]] {
        failToRead(tr("There is no field number %1.").arg(field));
    }
    return sqlite3_column_value(statement, field);
}

void RecordSet::refuseNoNumber(int field) const
{
    failToRead(
        tr("The value of column \"%1\" is no whole number.").arg(columnName(m_cursor->statement(), field)));
}

qint64 RecordSet::integer(int field, qint64 min, qint64 max) const
{
    sqlite3_value* stored = value(field);
    if (sqlite3_value_type(stored) != SQLITE_INTEGER) [[unlikely]] {
        refuseNoNumber(field);
    }
    const qint64 number = sqlite3_value_int64(stored);
    if (number < min || number > max) [[unlikely]] {
        failToRead(tr("The value of column \"%1\" is out of range: %2.")
                       .arg(columnName(m_cursor->statement(), field), QString::number(number)));
    }
    return number;
}

std::string_view RecordSet::utf8(int field) const
{
    sqlite3_value* stored = value(field);
    const int type = sqlite3_value_type(stored);
    if (type == SQLITE_NULL || type == SQLITE_BLOB) {
        failToRead((type == SQLITE_NULL ? tr("The value of column \"%1\" is null.")
                                        : tr("The value of column \"%1\" is no text."))
                       .arg(columnName(m_cursor->statement(), field)));
    }
    const unsigned char* text = sqlite3_value_text(stored);
    if (text == nullptr) {
        failToRead(tr("The value of column \"%1\" does not fit into memory.")
                       .arg(columnName(m_cursor->statement(), field)));
    }
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_value_bytes(stored))};
}

QString RecordSet::text(int field) const
{
    return quoted(utf8(field));
}

qint16 RecordSet::int16(int field) const
{
    using Range = std::numeric_limits<qint16>;
    return static_cast<qint16>(integer(field, Range::min(), Range::max()));
}

qint32 RecordSet::int32(int field) const
{
    using Range = std::numeric_limits<qint32>;
    return static_cast<qint32>(integer(field, Range::min(), Range::max()));
}

bool RecordSet::flag(int field) const
{
    sqlite3_value* stored = value(field);
    const int type = sqlite3_value_type(stored);
    if (type == SQLITE_INTEGER) [[likely]] {
        return sqlite3_value_int64(stored) != 0;
    }
    if (type != SQLITE_FLOAT) {
        refuseNoNumber(field);
    }
    return sqlite3_value_double(stored) != 0;
}

Moment RecordSet::moment(int field) const
{
    const std::string_view stored = utf8(field);
    const std::optional<Moment> moment = momentFromStoredText(stored);
    if (!moment && stored.empty()) {
        failToRead(tr("The value of column \"%1\" is empty.").arg(columnName(m_cursor->statement(), field)));
    }
    if (!moment) {
        failToRead(tr("The value of column \"%1\" is no date and time: %2.")
                       .arg(columnName(m_cursor->statement(), field), text(field).left(40)));
    }
    return *moment;
}

int RecordSet::compare(int field, const RecordSet& other, int otherField) const
{
    sqlite3_value* left = value(field);
    sqlite3_value* right = other.value(otherField);
    if (const int order = threeWay(rankOf(left), rankOf(right)); order != 0) {
        return order;
    }
    const bool areIntegers =
        sqlite3_value_type(left) == SQLITE_INTEGER && sqlite3_value_type(right) == SQLITE_INTEGER;
    if (areIntegers) [[likely]] {
        return threeWay(sqlite3_value_int64(left), sqlite3_value_int64(right));
    }
    if (rankOf(left) == 1) {
        return threeWay(sqlite3_value_double(left), sqlite3_value_double(right));
    }
    return threeWay(bytesOf(left), bytesOf(right));
}

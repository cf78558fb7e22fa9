#include "platform/database/IndexProof.h"

#include "platform/database/Connection.h"

#include <QRandomGenerator>
#include <QStringList>
#include <algorithm>
#include <cstring>
#include <sqlite3.h>

namespace
{

/// A number that no row has, so that a text and a number are mixed in differently.
constexpr quint64 TextMark = 0x9E3779B97F4A7C15U;

/// Every bit of the result hangs on every bit of `bits`.
quint64 scattered(quint64 bits)
{
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

/// A part of the entry before.
struct Part {
    bool isText = false;
    qint64 number = 0;
    std::string text;

    /// As the engine orders them: positive when what comes next is greater.
    int compareWith(bool nextIsText, qint64 next, std::string_view nextText) const
    {
        if (isText != nextIsText) {
            return nextIsText ? 1 : -1;
        }
        return isText ? nextText.compare(text)
                      : static_cast<int>(next > number) - static_cast<int>(next < number);
    }
};

/// Whether a name of the file can stand between brackets in a statement.
bool isPlainName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char(']'));
}

} // namespace

IndexProof::IndexProof(Connection& connection, const QString& table, const QString& id)
    : m_connection(&connection), m_table(table), m_id(id), m_seed(QRandomGenerator::system()->generate64())
{
    m_isPossible = lookUp();
}

// Asked of the engine, not taken from the texts in the file: the engine alone knows how it understands them.
bool IndexProof::lookUp()
{
    if (!m_connection
             ->execute(QStringLiteral("select 1 from pragma_table_list where schema = 'main' and "
                                      "(wr <> 0 or type not in ('table', 'view'))"))
             .atEnd()) {
        return false;
    }
    RecordSet columns = m_connection->execute(QStringLiteral(
        "select i.name, t.name = '%1' and not i.[unique] and not i.partial and "
        "(x.key and x.cid >= 0 and not x.[desc] and x.coll = 'BINARY' or not x.key and x.cid = -1), "
        "x.key, x.name from pragma_table_list as t, pragma_index_list(t.name) as i, "
        "pragma_index_xinfo(i.name) as x where t.schema = 'main' order by i.name, x.seqno")
                                                  .arg(m_table));
    constexpr int Name = 0;
    constexpr int IsPlain = 1;
    constexpr int IsOfKey = 2;
    constexpr int Column = 3;
    for (; !columns.atEnd(); columns.moveNext()) {
        const QString name = columns.text(Name);
        if (!columns.flag(IsPlain) || !isPlainName(name)) {
            return false;
        }
        if (m_indexes.empty() || m_indexes.back().name != name) {
            m_indexes.push_back({name, {}, {}, 0});
        }
        const QString column = columns.flag(IsOfKey) ? columns.text(Column) : m_id;
        if (!isPlainName(column)) {
            return false;
        }
        m_indexes.back().columns.push_back(column.toStdString());
    }
    return true;
}

bool IndexProof::read(const RecordSet& row, int field, Value& value)
{
    sqlite3_value* stored = row.value(field);
    const int type = sqlite3_value_type(stored);
    if (type == SQLITE_INTEGER) {
        value = {false, sqlite3_value_int64(stored), {}};
    } else if (type == SQLITE_TEXT) {
        value = {true, 0, row.utf8(field)};
    }
    return type == SQLITE_INTEGER || type == SQLITE_TEXT;
}

quint64 IndexProof::mixed(quint64 sum, const Value& value)
{
    if (!value.isText) {
        return scattered(sum ^ static_cast<quint64>(value.number));
    }
    sum = scattered(sum ^ TextMark ^ value.text.size());
    for (std::size_t i = 0; i < value.text.size(); i += sizeof(quint64)) {
        quint64 bits = 0;
        std::memcpy(&bits, value.text.data() + i, std::min(sizeof bits, value.text.size() - i));
        sum = scattered(sum ^ bits);
    }
    return sum;
}

void IndexProof::add(const RecordSet& row)
{
    ++m_rows;
    Value value;
    for (Index& index : m_indexes) {
        if (index.fields.empty()) {
            for (const std::string& column : index.columns) {
                index.fields.push_back(row.field(column));
            }
        }
        quint64 sum = m_seed;
        for (const int field : index.fields) {
            m_isPossible = read(row, field, value) && m_isPossible;
            sum = mixed(sum, value);
        }
        index.sum += sum;
    }
}

bool IndexProof::succeeds() const
{
    bool proven = m_isPossible;
    for (auto index = m_indexes.begin(); proven && index != m_indexes.end(); ++index) {
        proven = holds(*index);
    }
    return proven;
}

// Otherwise the table would be compared with itself.
bool IndexProof::readsTheIndexAlone(const QString& statement, const Index& index) const
{
    const RecordSet plan = m_connection->execute(QLatin1String("explain query plan ") + statement);
    return !plan.atEnd()
        && plan.text(plan.field("detail")).endsWith(QLatin1String(" USING COVERING INDEX ") + index.name);
}

bool IndexProof::holds(const Index& index) const
{
    QStringList columns;
    for (const std::string& column : index.columns) {
        columns.append(QLatin1Char('[') + QString::fromStdString(column) + QLatin1Char(']'));
    }
    const QString statement = QStringLiteral("select %1 from [%2] indexed by [%3]")
                                  .arg(columns.join(QLatin1String(", ")), m_table, index.name);
    if (!readsTheIndexAlone(statement, index)) {
        return false;
    }
    quint64 rows = 0;
    quint64 sum = 0;
    Value value;
    std::vector<Part> parts(index.columns.size());
    for (RecordSet entries = m_connection->execute(statement); !entries.atEnd(); entries.moveNext()) {
        quint64 mix = m_seed;
        int order = 0;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (!read(entries, static_cast<int>(i), value)) {
                return false;
            }
            mix = mixed(mix, value);
            order = order == 0 ? parts[i].compareWith(value.isText, value.number, value.text) : order;
            parts[i].isText = value.isText;
            parts[i].number = value.number;
            parts[i].text = value.text;
        }
        if (order <= 0 && rows > 0) {
            return false;
        }
        ++rows;
        sum += mix;
    }
    return rows == m_rows && sum == index.sum;
}

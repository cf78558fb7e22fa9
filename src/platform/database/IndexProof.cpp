#include "platform/database/IndexProof.h"

#include "platform/database/Connection.h"
#include "platform/database/IndexPages.h"

#include <QRandomGenerator>
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

    void keep(const StoredValue& value)
    {
        isText = value.isText;
        number = value.number;
        text = value.text;
    }
    /// As the engine orders them: positive when `next` is greater.
    int compareWith(const StoredValue& next) const
    {
        if (isText != next.isText) {
            return next.isText ? 1 : -1;
        }
        return isText ? next.text.compare(text)
                      : static_cast<int>(next.number > number) - static_cast<int>(next.number < number);
    }
};

} // namespace

IndexProof::IndexProof(Connection& connection, const QString& table, const QString& id)
    : m_table(table), m_id(id), m_seed(QRandomGenerator::system()->generate64())
{
    m_isPossible = lookUp(connection);
}

// Asked of the engine, not taken from the texts in the file: the engine alone knows how it understands them.
bool IndexProof::lookUp(Connection& connection)
{
    if (!connection
             .execute(QStringLiteral("select 1 from pragma_table_list where schema = 'main' and "
                                     "(wr <> 0 or type not in ('table', 'view'))"))
             .atEnd()) {
        return false;
    }
    RecordSet columns = connection.execute(QStringLiteral(
        "select i.name, t.name = '%1' and not i.[unique] and not i.partial and "
        "(x.key and x.cid >= 0 and not x.[desc] and x.coll = 'BINARY' or not x.key and x.cid = -1), "
        "ifnull((select rootpage from sqlite_schema where type = 'index' and name = i.name), 0), x.key, "
        "x.name from pragma_table_list as t, pragma_index_list(t.name) as i, "
        "pragma_index_xinfo(i.name) as x where t.schema = 'main' order by i.name, x.seqno")
                                               .arg(m_table));
    enum Field { Name, IsPlain, Root, IsOfKey, Column };
    for (; !columns.atEnd(); columns.moveNext()) {
        if (!columns.flag(IsPlain)) {
            return false;
        }
        const QString name = columns.text(Name);
        if (m_indexes.empty() || m_indexes.back().name != name) {
            m_indexes.push_back({name, columns.int32(Root), {}, {}, 0});
        }
        m_indexes.back().columns.push_back(
            (columns.flag(IsOfKey) ? columns.text(Column) : m_id).toStdString());
    }
    return true;
}

bool IndexProof::read(const RecordSet& row, int field, StoredValue& value)
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

quint64 IndexProof::mixed(quint64 sum, const StoredValue& value)
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
    StoredValue value;
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

bool IndexProof::succeeds(IndexPages& pages) const
{
    return m_isPossible && std::all_of(m_indexes.begin(), m_indexes.end(), [&](const Index& index) {
        return holds(index, pages);
    });
}

bool IndexProof::holds(const Index& index, IndexPages& pages) const
{
    quint64 rows = 0;
    quint64 sum = 0;
    std::vector<Part> before(index.columns.size());
    const auto isNext = [&](const std::vector<StoredValue>& entry) {
        quint64 mix = m_seed;
        int order = 0;
        for (std::size_t i = 0; i < entry.size(); ++i) {
            mix = mixed(mix, entry[i]);
            order = order == 0 ? before[i].compareWith(entry[i]) : order;
            before[i].keep(entry[i]);
        }
        ++rows;
        sum += mix;
        return rows == 1 || (order > 0 && rows <= m_rows);
    };
    return pages.read(index.root, index.columns.size(), isNext) && rows == m_rows && sum == index.sum;
}

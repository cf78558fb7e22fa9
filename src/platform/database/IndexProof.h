#pragma once

#include <QString>
#include <string>
#include <vector>

class Connection;
class IndexPages;
class RecordSet;
struct StoredValue;

/// Proves that the indexes of a data file hold what they should, at a fraction of what it costs the engine,
/// which looks every row up in every index. With the engine's `quick_check`, which leaves just that out, it
/// says what `integrity_check` says.
///
/// Each index is read once from end to end: every entry has to be well formed and greater than the one
/// before, so that none stands twice or out of its place; there have to be as many as rows; and the sum of a
/// mixing function over the entries has to be the sum over the rows. The function is another one each time,
/// by chance: of 2^64 such functions one lets a given wrong index pass.
///
/// What is not plainly so is left unproven, and then `integrity_check` has to decide. Used on one thread.
class IndexProof
{
public:
    /// Looks up what is indexed in the file of `connection`. `id` is the column by which the rows of `table`
    /// are known. Throws DatabaseError.
    IndexProof(Connection& connection, const QString& table, const QString& id);

    /// Whether there can be a proof: all indexes of the file belong to `table` and are plain ones of its
    /// columns, and no table is itself kept in the order of a key.
    bool isPossible() const { return m_isPossible; }
    /// Takes a row of the table into account. Every row is to be given, once, from one query with all
    /// columns.
    void add(const RecordSet& row);
    /// Reads the indexes off the pages of the file. Whether they hold exactly the rows given.
    bool succeeds(IndexPages& pages) const;

private:
    struct Index {
        QString name;
        qint64 root = 0; ///< its first page
        std::vector<std::string> columns; ///< the id is the last
        std::vector<int> fields; ///< their places in the rows given
        quint64 sum = 0;
    };

    bool lookUp(Connection& connection);
    bool holds(const Index& index, IndexPages& pages) const;
    static bool read(const RecordSet& row, int field, StoredValue& value);
    static quint64 mixed(quint64 sum, const StoredValue& value);

    QString m_table;
    QString m_id;
    quint64 m_seed;
    quint64 m_rows = 0;
    std::vector<Index> m_indexes;
    bool m_isPossible = false;
};

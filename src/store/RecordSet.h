#pragma once

#include "system/Moment.h"

#include <QCoreApplication>
#include <memory>
#include <string_view>

class Cursor;
struct sqlite3_value;

/// The rows of a query, read once from first to last. Movable. At the end, or when its connection is
/// closed, it holds no lock on the data file any more; rows not read until then are lost.
///
/// A field is named by its column; where two tables of the query share a column name, by `table.column`.
/// Look fields up with `field()` before the loop. All reading functions throw DatabaseError (Conversion),
/// which names the column, for a value that does not convert (a null, a number out of range, a text that is
/// no moment) and when there is no current record. Moving on throws DatabaseError when the next row cannot
/// be read.
class RecordSet
{
    Q_DECLARE_TR_FUNCTIONS(RecordSet)

public:
    RecordSet();
    RecordSet(RecordSet&&) noexcept;
    RecordSet& operator=(RecordSet&&) noexcept;
    ~RecordSet();

    bool atEnd() const { return m_atEnd; }
    void moveNext();

    /// The position of that field. Throws DatabaseError, which names it, when there is none or it is
    /// ambiguous.
    int field(std::string_view name) const;

    /// The text as stored, in UTF-8; valid until the record set moves on.
    std::string_view utf8(int field) const;
    QString text(int field) const;
    qint16 int16(int field) const;
    qint32 int32(int field) const;
    /// False for 0, true for any other number.
    bool flag(int field) const;
    Moment moment(int field) const;
    /// Less than, equal to or greater than 0 as the value comes before, is the same as or comes after that of
    /// another record set: nulls before numbers, texts and bytes, each by its content. Converts nothing.
    int compare(int field, const RecordSet& other, int otherField) const;

private:
    friend class Connection;
    /// Stands on the first row, if any.
    explicit RecordSet(std::unique_ptr<Cursor> cursor);
    sqlite3_value* value(int field) const;
    qint64 integer(int field, qint64 min, qint64 max) const;
    [[noreturn]] void refuseNoNumber(int field) const;

    std::unique_ptr<Cursor> m_cursor;
    int m_fieldCount = 0;
    bool m_atEnd = true;
};

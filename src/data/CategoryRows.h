#pragma once

#include "data/RecordReading.h"

class ClsCategory;

/// Reads categories from the rows of a query that has all columns of their table.
class CategoryRows
{
public:
    /// Looks the columns up; throws DatabaseError when one is missing.
    explicit CategoryRows(const RecordSet& records);

    /// The id in the current row. Throws UnreadableRecordError.
    qint16 id(const RecordSet& records) const;
    /// Reads the current row. Throws UnreadableRecordError.
    void read(const RecordSet& records, ClsCategory& category) const;

private:
    qint16 narrowedId(const RecordSet& records) const;

    RecordNaming m_naming;
    int m_icon;
    int m_description;
    int m_isCustomIcon;
    int m_customIconName;
};

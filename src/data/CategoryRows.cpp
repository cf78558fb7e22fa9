#include "data/CategoryRows.h"

#include "data/ClsCategory.h"

CategoryRows::CategoryRows(const RecordSet& records)
    : m_naming{QLatin1String("categories"), records.field("categories.cat_id"), records.field("cat_name")},
      m_icon(records.field("cat_icon")), m_description(records.field("cat_desc")),
      m_isCustomIcon(records.field("custom_icon")), m_customIconName(records.field("cat_icon_name"))
{
}

qint16 CategoryRows::id(const RecordSet& records) const
{
    qint16 id = 0;
    readRecord(records, m_naming, [&] { id = narrowedId(records); });
    return id;
}

qint16 CategoryRows::narrowedId(const RecordSet& records) const
{
    // Names the column, as other values do that do not convert.
    return narrowId(records.int32(m_naming.id), "cat_id");
}

void CategoryRows::read(const RecordSet& records, ClsCategory& category) const
{
    readRecord(records, m_naming, [&] {
        category.setCatName(records.text(m_naming.name));
        category.setId(narrowedId(records));
        category.setIconId(records.int16(m_icon));
        category.setDescription(records.text(m_description));
        category.setIsCustomIcon(records.flag(m_isCustomIcon));
        category.setCustomIconName(records.text(m_customIconName));
    });
}

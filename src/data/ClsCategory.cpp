#include "data/ClsCategory.h"

#include "data/CategoryRows.h"
#include "data/ClsDatabase.h"
#include "data/SqlText.h"

namespace
{

const QLatin1String SelectAll(
    "select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories");

} // namespace

ClsCategory::ClsCategory(const DatabaseEngine& engine) : m_engine(&engine)
{
}

std::optional<ClsCategory> ClsCategory::GetCatById(qint16 Id) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    std::optional<ClsCategory> category;
    const RecordSet records =
        connection.execute(SelectAll + QLatin1String(" where cat_id = ") + QString::number(Id));
    if (!records.atEnd()) {
        category.emplace(*m_engine);
        CategoryRows(records).read(records, *category);
    }
    connection.close();
    return category;
}

std::vector<ClsCategory> ClsCategory::GetAllCategories() const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    std::vector<ClsCategory> categories;
    RecordSet records = connection.execute(SelectAll);
    const CategoryRows rows(records);
    for (; !records.atEnd(); records.moveNext()) {
        ClsCategory& category = categories.emplace_back(*m_engine);
        if (!readOrLeaveOut(*m_engine, [&] { rows.read(records, category); })) {
            categories.pop_back();
        }
    }
    connection.close();
    return categories;
}

bool ClsCategory::Add() const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    // From here on nobody else makes a category of the name.
    connection.beginWriting();
    const bool exists = !connection
                             .execute(QLatin1String("select * from categories where cat_name = '")
                                 + EscapeSqlText(m_name) + QLatin1String("'"))
                             .atEnd();
    if (!exists) {
        connection.execute(
            QLatin1String(
                "insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) values('")
            + EscapeSqlText(m_name) + QLatin1String("','") + EscapeSqlText(m_description)
            + QLatin1String("',") + QString::number(m_iconId) + QLatin1String(",") + sqlFlag(m_isCustomIcon)
            + QLatin1String(",'") + EscapeSqlText(m_customIconName) + QLatin1String("')"));
    }
    connection.close();
    return exists;
}

void ClsCategory::Update() const
{
    updateAll(*m_engine, {*this});
}

void ClsCategory::updateAll(const DatabaseEngine& engine, const std::vector<ClsCategory>& categories)
{
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    for (const ClsCategory& category : categories) {
        connection.execute(category.updateStatement());
    }
    connection.close();
}

QString ClsCategory::updateStatement() const
{
    return QLatin1String("Update categories set cat_name = '") + EscapeSqlText(m_name)
        + QLatin1String("',cat_desc = '") + EscapeSqlText(m_description) + QLatin1String("', cat_icon = ")
        + QString::number(m_iconId) + QLatin1String(",custom_icon = ") + sqlFlag(m_isCustomIcon)
        + QLatin1String(" ,cat_icon_name = '") + EscapeSqlText(m_customIconName)
        + QLatin1String("'  where cat_id =  ") + QString::number(m_id);
}

bool ClsCategory::hasTasks(qint16 id) const
{
    const DatabaseEngine unheard = m_engine->unheard();
    Connection connection = ClsDatabase(unheard).Connect();
    connection.open();
    const bool found = !connection
                            .execute(QLatin1String("select task_id from tasks where cat_id = ")
                                + QString::number(id) + QLatin1String(" limit 1"))
                            .atEnd();
    connection.close();
    return found;
}

void ClsCategory::DeleteById(qint16 number) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.execute(QLatin1String("delete from categories where cat_id = ") + QString::number(number));
    connection.execute(QLatin1String("delete from tasks where cat_id = ") + QString::number(number));
    connection.close();
}

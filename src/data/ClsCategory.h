#pragma once

#include "store/DatabaseEngine.h"

#include <QString>
#include <optional>
#include <vector>

class RecordSet;

/// The record of one category and the store of the table `categories`. Copyable. Every operation opens a
/// connection of its own and closes it; all throw DatabaseError.
class ClsCategory
{
public:
    /// `engine` outlives the object and its copies.
    explicit ClsCategory(const DatabaseEngine& engine);

    /// 0 for a category that is not stored yet.
    qint16 Id() const { return m_id; }
    void setId(qint16 id) { m_id = id; }
    QString CatName() const { return m_name; }
    void setCatName(const QString& name) { m_name = name; }
    QString Description() const { return m_description; }
    void setDescription(const QString& description) { m_description = description; }
    qint16 IconId() const { return m_iconId; }
    void setIconId(qint16 iconId) { m_iconId = iconId; }
    bool IsCustomIcon() const { return m_isCustomIcon; }
    void setIsCustomIcon(bool isCustomIcon) { m_isCustomIcon = isCustomIcon; }
    QString CustomIconName() const { return m_customIconName; }
    void setCustomIconName(const QString& name) { m_customIconName = name; }

    /// The stored category of that id; none when there is no such row. Throws UnreadableRecordError for a
    /// row that does not convert.
    std::optional<ClsCategory> GetCatById(qint16 Id) const;
    /// All categories in the order in which they were made. Rows that do not convert are left out
    /// (DatabaseEngine::unreadable).
    std::vector<ClsCategory> GetAllCategories() const;
    /// Inserts this category. False (0) when it was inserted; true (-1) when a category of that name exists
    /// already, in whatever letter case, and then nothing is inserted. The new id is not read back.
    bool Add() const;
    /// Updates the row of its id. Does not check whether another category has the same name.
    void Update() const;
    /// Updates all of them with one commit: sixty commits would take longer than the rest of a start.
    static void updateAll(const DatabaseEngine& engine, const std::vector<ClsCategory>& categories);
    /// Whether any task is in the category. The listener is not told.
    bool hasTasks(qint16 id) const;
    /// Deletes the category and its tasks.
    void DeleteById(qint16 number) const;

private:
    QString updateStatement() const;

    const DatabaseEngine* m_engine;
    QString m_name;
    QString m_description;
    QString m_customIconName;
    qint16 m_id = 0;
    qint16 m_iconId = 0;
    bool m_isCustomIcon = false;
};

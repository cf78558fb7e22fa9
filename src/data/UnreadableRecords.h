#pragma once

#include "store/DatabaseEngine.h"

#include <QCoreApplication>
#include <QStringList>
#include <set>
#include <utility>

/// A sentence that names the record and says which value does not convert.
QString sentenceOf(const UnreadableRecord& record);

/// Collects the unreadable records of a program run, so that each is named to the user once, however often
/// the lists are read. Interface thread only.
class UnreadableRecords final : public UnreadableRecordListener
{
    Q_DECLARE_TR_FUNCTIONS(UnreadableRecords)

public:
    /// The most records that are named at a time; of more the number is given.
    static constexpr qsizetype MostNamed = 8;

    void recordLeftOut(const UnreadableRecord& record) override;
    /// Whether a category has been left out since the last call of `takeText`.
    bool hasCategory() const { return m_hasCategory; }
    /// What to tell the user: the records collected since the last call, and what to do about them. Empty
    /// when there are none.
    QString takeText();
    /// To be called when the data file has been replaced: its records have not been told yet.
    void forget();

private:
    std::set<std::pair<QString, QString>> m_known; ///< table and id
    QStringList m_records;
    QStringList m_settings;
    int m_more = 0;
    bool m_hasCategory = false;
};

#pragma once

#include "platform/database/DatabaseEngine.h"

#include <QCoreApplication>
#include <QStringList>
#include <set>
#include <utility>

/// A sentence that names the record and says what in it does not convert.
QString sentenceOf(const UnreadableRecord& record);

/// What a run of the program has met in its data file that does not convert, so that the user hears of each
/// record once, however often the lists are read. Interface thread only.
class UnreadableRecords final : public UnreadableRecordListener
{
    Q_DECLARE_TR_FUNCTIONS(UnreadableRecords)

public:
    /// So many records are named at a time; of more the number is told.
    static constexpr qsizetype MostNamed = 8;

    void recordLeftOut(const UnreadableRecord& record) override;
    /// A category has been left out since the last call of `takeText`.
    bool hasCategory() const { return m_hasCategory; }
    /// What the user is to be told: the records that have come since the last call, and what to do about
    /// them. Empty when there are none.
    QString takeText();
    /// The data file is another one: its records are not those that have been told.
    void forget();

private:
    std::set<std::pair<QString, QString>> m_known; ///< table and id
    QStringList m_records;
    QStringList m_settings;
    int m_more = 0;
    bool m_hasCategory = false;
};

#include "support/TestMain.h"
#include "tasks/TaskMoments.h"

#include <QKeySequence>
#include <QSet>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

Moment at(const char* text)
{
    return momentFromStoredText(text).value();
}

QString shown(DueMoment which, const char* now)
{
    const std::optional<Moment> moment = momentOf(which, at(now));
    return moment ? QString::fromStdString(storedText(*moment)) : QStringLiteral("none");
}

QString shownBefore(const char* due, std::chrono::minutes lead)
{
    return QString::fromStdString(storedText(reminderBefore(at(due), lead)));
}

/// The different keys that choose entries of a menu.
template <typename Entries> QSet<QString> mnemonicsOf(const Entries& entries)
{
    QSet<QString> keys;
    for (const auto entry : entries) {
        keys.insert(QKeySequence::mnemonic(captionOf(entry)).toString());
    }
    keys.remove(QString());
    return keys;
}

} // namespace

class TaskMomentsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskIsDueThisEveningTomorrowOrNextMonday()
    {
        const char* thursday = "2026-01-15 10:20:30";
        QCOMPARE(shown(DueMoment::Today, thursday), QStringLiteral("2026-01-15 18:00:00"));
        QCOMPARE(shown(DueMoment::Tomorrow, thursday), QStringLiteral("2026-01-16 09:00:00"));
        QCOMPARE(shown(DueMoment::NextMonday, thursday), QStringLiteral("2026-01-19 09:00:00"));
        QCOMPARE(shown(DueMoment::NextMonday, "2026-01-19 08:00:00"), QStringLiteral("2026-01-26 09:00:00"));
    }

    void theEntriesSayTheTime()
    {
        QCOMPARE(captionOf(DueMoment::Today), QStringLiteral("To&day, 18:00"));
        QCOMPARE(captionOf(DueMoment::NextMonday), QStringLiteral("Next &Monday, 09:00"));
    }

    void inTheEveningTodayIsOver()
    {
        QCOMPARE(shown(DueMoment::Today, "2026-01-15 17:59:59"), QStringLiteral("2026-01-15 18:00:00"));
        QCOMPARE(shown(DueMoment::Today, "2026-01-15 18:00:00"), QStringLiteral("none"));
        QCOMPARE(shown(DueMoment::Today, "2026-01-15 19:00:00"), QStringLiteral("none"));
    }

    void aReminderComesSoLongBeforeTheDueMoment()
    {
        const char* due = "2026-03-01 00:10:00";
        QCOMPARE(shownBefore(due, 0min), QStringLiteral("2026-03-01 00:10:00"));
        QCOMPARE(shownBefore(due, 15min), QStringLiteral("2026-02-28 23:55:00"));
        QCOMPARE(shownBefore(due, 60min), QStringLiteral("2026-02-28 23:10:00"));
        QCOMPARE(shownBefore(due, 24h), QStringLiteral("2026-02-28 00:10:00"));
    }

    void aReminderComesAtNoTimeThatTheClocksSkip()
    {
        // Europe/London: from 1:00 to 2:00 on 29 March.
        QCOMPARE(shownBefore("2026-03-29 02:10:00", 30min), QStringLiteral("2026-03-29 00:40:00"));
        QCOMPARE(shownBefore("2026-03-29 02:30:00", 60min), QStringLiteral("2026-03-29 00:30:00"));
        QCOMPARE(shownBefore("2026-03-29 12:00:00", 24h), QStringLiteral("2026-03-28 12:00:00"));
    }

    void everyEntryHasAMnemonicOfItsOwn()
    {
        QCOMPARE(mnemonicsOf(AllDueMoments).size(), qsizetype(AllDueMoments.size()));
        QCOMPARE(mnemonicsOf(AllLeads).size(), qsizetype(AllLeads.size()));
    }
};

AMBERTASK_TEST_MAIN(TaskMomentsTest)
#include "tst_task_moments.moc"

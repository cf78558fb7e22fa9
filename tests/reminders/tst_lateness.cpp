#include "reminders/Lateness.h"
#include "support/TestMain.h"
#include "widgets/MomentTexts.h"

#include <QTest>

using namespace std::chrono_literals;

class LatenessTest : public TestCase
{
    Q_OBJECT

private slots:
    void latenessIsToldInTheLargestUnitThatHasPassed_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        const auto row = [](std::chrono::seconds late, const char* text) {
            QTest::newRow(text) << qint64(late.count()) << QString::fromLatin1(text);
        };
        QTest::newRow("ahead") << qint64(-3600) << QStringLiteral("due now");
        QTest::newRow("this second") << qint64(0) << QStringLiteral("due now");
        QTest::newRow("within the first minute") << qint64(59) << QStringLiteral("due now");
        row(1min, "1 minute late");
        QTest::newRow("not yet two") << qint64(119) << QStringLiteral("1 minute late");
        row(2min, "2 minutes late");
        row(12min + 30s, "12 minutes late");
        row(59min + 59s, "59 minutes late");
        row(1h, "1 hour late");
        QTest::newRow("not yet two hours") << qint64(7199) << QStringLiteral("1 hour late");
        row(2h, "2 hours late");
        row(23h + 59min, "23 hours late");
        row(24h, "1 day late");
        QTest::newRow("not yet two days") << qint64(47 * 3600) << QStringLiteral("1 day late");
        row(48h, "2 days late");
        row(24h * 365 * 30, "10950 days late");
    }

    void latenessIsToldInTheLargestUnitThatHasPassed()
    {
        QFETCH(qint64, seconds);
        const Moment now = toMoment(QDate(2026, 1, 15), QTime(10, 0));
        QTEST(latenessText(now - std::chrono::seconds(seconds), now), "text");
    }

    void howOftenAReminderHasComeIsToldFromTheSecondTimeOn()
    {
        // A Thursday.
        const Moment now = toMoment(QDate(2026, 1, 15), QTime(10, 0));
        QCOMPARE(missedText(0, now, now), QString());
        QCOMPARE(missedText(1, now - 48h, now), QString());
        QCOMPARE(missedText(4, now - 72h, now), QStringLiteral("4 times since Monday"));
        QCOMPARE(missedText(2, now - 1h, now), QStringLiteral("2 times since Thursday"));
        QCOMPARE(missedText(6, toMoment(QDate(2026, 1, 9), QTime(0, 0)), now),
            QStringLiteral("6 times since Friday"));
        // The Thursday before.
        QCOMPARE(missedText(7, toMoment(QDate(2026, 1, 8), QTime(23, 59)), now),
            QStringLiteral("7 times since ") + shortDate(toMoment(QDate(2026, 1, 8))));
    }
};

AMBERTASK_TEST_MAIN(LatenessTest)
#include "tst_lateness.moc"

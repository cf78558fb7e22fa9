#include "widgets/RepeatTexts.h"

#include "support/TestMain.h"

#include <QLocale>
#include <QTest>

class RepeatTextsTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void rulesInWords_data();
    void rulesInWords();
    void theWorkingWeekIsThatOfTheSystem();
    void namesFollowTheSystem();
    void weekdaysAreNamedFromTheFirstOneOfTheWeekOn();
};

namespace
{

QString textOf(const char* rule, const char* day)
{
    return repeatText(rule, momentFromStoredText(std::string(day) + " 09:00:00").value());
}

} // namespace

void RepeatTextsTest::cleanup()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void RepeatTextsTest::rulesInWords_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* rule, const char* first, const char* text) {
        QTest::addRow("%s from %s", rule, first)
            << QByteArray(rule) << QByteArray(first) << QString::fromUtf8(text);
    };
    row("FREQ=DAILY", "2026-01-13", "every day");
    row("FREQ=DAILY;INTERVAL=3", "2026-01-13", "every 3 days");
    row("FREQ=WEEKLY", "2026-01-13", "every week on Tuesday");
    row("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR", "2026-01-13", "every weekday");
    row("FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR", "2026-01-13", "every weekday");
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TU,WE,TH,FR", "2026-01-13",
        "every 2 weeks on Monday, Tuesday, Wednesday, Thursday, and Friday");
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH;UNTIL=20261224", "2026-01-12",
        "every 2 weeks on Monday and Thursday until 12/24/2026");
    row("FREQ=WEEKLY;COUNT=10", "2026-01-18", "every week on Sunday, 10 times");
    row("FREQ=WEEKLY;COUNT=1", "2026-01-18", "every week on Sunday, once");
    row("FREQ=MONTHLY", "2026-01-15", "every month on day 15");
    row("FREQ=MONTHLY;BYMONTHDAY=28,29,30,31;BYSETPOS=-1;INTERVAL=2", "2026-01-31",
        "every 2 months on day 31");
    row("FREQ=MONTHLY;BYMONTHDAY=-1", "2026-01-31", "every month on the last day");
    row("FREQ=MONTHLY;BYMONTHDAY=-1;INTERVAL=3", "2026-01-31", "every 3 months on the last day");
    row("FREQ=MONTHLY;BYDAY=1TU", "2026-01-06", "every month on the first Tuesday");
    row("FREQ=MONTHLY;BYDAY=2TU", "2026-01-13", "every month on the second Tuesday");
    row("FREQ=MONTHLY;BYDAY=3TU", "2026-01-20", "every month on the third Tuesday");
    row("FREQ=MONTHLY;BYDAY=4TU", "2026-01-27", "every month on the fourth Tuesday");
    row("FREQ=MONTHLY;BYDAY=-1SA", "2026-01-31", "every month on the last Saturday");
    row("FREQ=MONTHLY;INTERVAL=6;BYDAY=2TU", "2026-01-13", "every 6 months on the second Tuesday");
    row("FREQ=YEARLY", "2026-12-24", "every year on 24 December");
    row("FREQ=YEARLY;INTERVAL=4;COUNT=2", "2026-12-24", "every 4 years on 24 December, 2 times");
    row("FREQ=YEARLY;BYDAY=20MO", "2026-01-13", "by a rule of another program");
    row("\xff", "2026-01-13", "by a rule of another program");
}

void RepeatTextsTest::rulesInWords()
{
    QFETCH(QByteArray, rule);
    QFETCH(QByteArray, first);
    QFETCH(QString, text);
    QCOMPARE(textOf(rule.constData(), first.constData()), text);
}

void RepeatTextsTest::theWorkingWeekIsThatOfTheSystem()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Israel));
    QCOMPARE(textOf("FREQ=WEEKLY;BYDAY=SU,MO,TU,WE,TH", "2026-01-13"), QStringLiteral("every weekday"));
    QVERIFY(textOf("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR", "2026-01-13")
                .startsWith(QLatin1String("every week on Monday")));
}

void RepeatTextsTest::namesFollowTheSystem()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(textOf("FREQ=WEEKLY;BYDAY=MO,TH;UNTIL=20261224", "2026-01-12"),
        QStringLiteral("every week on Montag und Donnerstag until 24.12.2026"));
}

void RepeatTextsTest::weekdaysAreNamedFromTheFirstOneOfTheWeekOn()
{
    const auto text = [](QLocale::Country country) {
        QLocale::setDefault(QLocale(QLocale::English, country));
        return textOf("FREQ=WEEKLY;BYDAY=MO,SU", "2026-01-12");
    };
    QCOMPARE(text(QLocale::Israel), QStringLiteral("every week on Sunday and Monday"));
    QCOMPARE(text(QLocale::UnitedStates), QStringLiteral("every week on Sunday and Monday"));
    QCOMPARE(text(QLocale::Germany), QStringLiteral("every week on Monday and Sunday"));
}

AMBERTASK_TEST_MAIN(RepeatTextsTest)

#include "tst_repeat_texts.moc"

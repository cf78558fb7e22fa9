#include "support/TestMain.h"
#include "tasks/RepeatChoices.h"
#include "tasks/RepeatInput.h"
#include "widgets/RepeatTexts.h"

#include <QLocale>
#include <QTest>

using namespace std::chrono_literals;
using Unit = RepeatPattern::Unit;

/// Weeks of languages that work on other days than from Monday to Friday, or begin on another one.
class WorkingWeeksTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void weekdaysAreTheWorkingWeekOfTheLanguage_data();
    void weekdaysAreTheWorkingWeekOfTheLanguage();
    void everySecondWorkingWeekIsAWholeOne_data();
    void everySecondWorkingWeekIsAWholeOne();
    void weeksOfAStoredRuleStayAsTheyAre();
};

namespace
{

const Moment Tuesday = std::chrono::local_days(std::chrono::January / 13 / 2026) + 9h;
const Moment Sunday = std::chrono::local_days(std::chrono::January / 18 / 2026) + 9h;
/// The place of "Every weekday" in the list.
constexpr int Weekday = 2;

RepeatChoices::Entry weekdayEntry()
{
    RepeatChoices choices;
    choices.reset(Tuesday);
    return choices.entries().at(Weekday);
}

} // namespace

void WorkingWeeksTest::cleanup()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void WorkingWeeksTest::weekdaysAreTheWorkingWeekOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("days");
    const QString fromMonday = QStringLiteral("Monday Tuesday Wednesday Thursday Friday");
    const QString fromSunday = QStringLiteral("Monday Tuesday Wednesday Thursday Sunday");
    for (const char* language : {"he_IL", "ar_EG", "ar_SA", "ar_IQ", "ar_JO", "ar_DZ", "ar_KW"}) {
        QTest::newRow(language) << QString::fromLatin1(language) << fromSunday;
    }
    for (const char* language : {"ar_AE", "ar_LB", "ar_MA", "ar_TN", "en_US", "de_DE"}) {
        QTest::newRow(language) << QString::fromLatin1(language) << fromMonday;
    }
    // Weeks of six days, and one that goes across both ends.
    QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << fromMonday + QStringLiteral(" Saturday");
    QTest::newRow("ps_AF") << QStringLiteral("ps_AF")
                           << QStringLiteral("Monday Tuesday Wednesday Saturday Sunday");
}

void WorkingWeeksTest::weekdaysAreTheWorkingWeekOfTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, days);
    QLocale::setDefault(QLocale(language));
    const RepeatChoices::Entry entry = weekdayEntry();
    const auto pattern = patternOf(entry.rule, Tuesday);
    QVERIFY(pattern && pattern->unit == Unit::Weeks && pattern->every == 1);
    QStringList named;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        if (pattern->weekdays[static_cast<std::size_t>(day - Qt::Monday)]) {
            named.append(QLocale::c().dayName(day));
        }
    }
    QCOMPARE(named.join(u' '), days);
    QCOMPARE(repeatText(entry.rule, Tuesday), QStringLiteral("every weekday"));
    // The entry is found again in what was stored.
    RepeatChoices stored;
    stored.load({.rule = entry.rule, .first = Tuesday}, Tuesday);
    QCOMPARE(stored.chosen(), Weekday);
}

void WorkingWeeksTest::everySecondWorkingWeekIsAWholeOne_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("days");
    QTest::newRow("he_IL") << QStringLiteral("he_IL") << QStringLiteral("18 19 20 21 22 1 2 3 4 5");
    QTest::newRow("ar_EG") << QStringLiteral("ar_EG") << QStringLiteral("18 19 20 21 22 1 2 3 4 5");
    QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("18 26 27 28 29 1 9 10 11 12");
}

/// From Sunday, 18 January on, with that day and those from Monday to Thursday.
void WorkingWeeksTest::everySecondWorkingWeekIsAWholeOne()
{
    QFETCH(const QString, language);
    QFETCH(const QString, days);
    QLocale::setDefault(QLocale(language));
    RepeatInput input = RepeatInput::of(RepeatPattern(), Sunday);
    input.every = 2;
    input.weekdays = std::bitset<7>("1001111");
    const std::string rule = ruleOf(input.pattern(Sunday), Sunday);
    QStringList due;
    for (const Moment moment : dueMoments({.rule = rule, .first = Sunday}, Sunday, 10)) {
        due.append(QString::number(toQDate(moment).day()));
    }
    QCOMPARE(due.join(u' '), days);
}

void WorkingWeeksTest::weeksOfAStoredRuleStayAsTheyAre()
{
    for (const char* rule : {"FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU",
             "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU;WKST=SU", "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU;WKST=WE"}) {
        RepeatChoices choices;
        choices.load({rule, Sunday, {}, 0}, Sunday);
        // Another due moment makes a rule anew.
        choices.setDue(Sunday + 1h);
        QCOMPARE(QString::fromStdString(choices.repeatBy(choices.pattern()).rule), QString::fromLatin1(rule));
    }
}

AMBERTASK_TEST_MAIN(WorkingWeeksTest)

#include "tst_working_weeks.moc"

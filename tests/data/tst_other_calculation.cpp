#include "SeriesTexts.h"
#include "data/RepeatPattern.h"
#include "support/FileContent.h"
#include "support/TestMain.h"

#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <libical/ical.h>
#include <random>

using std::chrono::days;

namespace
{

#ifdef __SANITIZE_ADDRESS__
// The sanitizer looks for other faults than wrong moments, and takes minutes for all of them.
constexpr int Rules = 1'000;
#else
constexpr int Rules = 10'000;
#endif
constexpr int Most = 4;
constexpr unsigned Seed = 20'261'224;

/// Rules that the standard allows, the same ones each time.
class RandomRules
{
public:
    QByteArray rule();
    /// In the years 1990 to 2039, at some time of day.
    Moment first()
    {
        return momentOf("1990-01-01 00:00:00") + days(below(50 * 365)) + std::chrono::seconds(below(86'400));
    }
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

private:
    bool oneIn(int many) { return below(many) == 0; }
    QByteArray weekday() { return QByteArrayLiteral("MOTUWETHFRSASU").mid(2 * below(7), 2); }
    /// Up to `many` numbers from 1 to `end`, or from -1 to -`last`.
    QByteArray numbers(int many, int end, int last);
    QByteArray weekdays(int numbered);
    void addDays(QByteArray& rule, const QByteArray& frequency);
    void addEnd(QByteArray& rule);

    std::mt19937 m_random{Seed};
};

QByteArray RandomRules::numbers(int many, int end, int last)
{
    QByteArrayList list;
    for (int i = below(many); i >= 0; --i) {
        list.append(QByteArray::number(last > 0 && oneIn(3) ? -1 - below(last) : 1 + below(end)));
    }
    return list.join(',');
}

/// With numbers up to `numbered`; none where that is 0.
QByteArray RandomRules::weekdays(int numbered)
{
    const bool hasNumbers = numbered > 0 && oneIn(2);
    QByteArrayList list;
    for (int i = below(4); i >= 0; --i) {
        list.append((hasNumbers ? numbers(1, numbered, numbered) : QByteArray()) + weekday());
    }
    return list.join(',');
}

void RandomRules::addDays(QByteArray& rule, const QByteArray& frequency)
{
    const bool isYearly = frequency == "YEARLY";
    const bool hasWeekNumbers = isYearly && oneIn(4);
    bool named = hasWeekNumbers;
    if (hasWeekNumbers) {
        rule += ";BYWEEKNO=" + numbers(3, 53, 51);
    }
    if (isYearly && oneIn(5)) {
        rule += ";BYYEARDAY=" + numbers(4, 366, 366);
        named = true;
    }
    if (oneIn(4)) {
        rule += ";BYMONTH=" + numbers(4, 12, 0);
        named = true;
    }
    if (frequency != "WEEKLY" && oneIn(3)) {
        rule += ";BYMONTHDAY=" + numbers(4, 31, 31);
        named = true;
    }
    if (oneIn(2)) {
        const bool canHaveNumbers = (isYearly && !hasWeekNumbers) || frequency == "MONTHLY";
        rule += ";BYDAY=" + weekdays(!canHaveNumbers ? 0 : isYearly && !rule.contains("BYMONTH=") ? 53 : 5);
        named = true;
    }
    if (named && oneIn(4)) {
        rule += ";BYSETPOS=" + numbers(2, 4, 4);
    }
}

void RandomRules::addEnd(QByteArray& rule)
{
    if (oneIn(4)) {
        rule += ";COUNT=" + QByteArray::number(1 + below(60));
    } else if (oneIn(4)) {
        const std::string until = storedText(first());
        rule += ";UNTIL="
            + QByteArray::fromStdString(until.substr(0, 4) + until.substr(5, 2) + until.substr(8, 2));
        if (oneIn(2)) {
            rule += 'T'
                + QByteArray::fromStdString(until.substr(11, 2) + until.substr(14, 2) + until.substr(17, 2));
        }
    }
}

QByteArray RandomRules::rule()
{
    const QByteArray frequency = QByteArrayList{"DAILY", "WEEKLY", "MONTHLY", "YEARLY"}.at(below(4));
    QByteArray rule = "FREQ=" + frequency;
    if (oneIn(2)) {
        rule += ";INTERVAL=" + QByteArray::number(1 + below(frequency == "YEARLY" ? 5 : 20));
    }
    if (oneIn(3)) {
        rule += ";WKST=" + weekday();
    }
    addDays(rule, frequency);
    addEnd(rule);
    return rule;
}

icaltimetype icalOf(Moment moment)
{
    const QDate date = toQDate(moment);
    const QTime time = toQTime(moment);
    icaltimetype found = icaltime_null_time();
    found.year = date.year();
    found.month = date.month();
    found.day = date.day();
    found.hour = time.hour();
    found.minute = time.minute();
    found.second = time.second();
    return found;
}

/// The moments of a rule as libical has them, in order.
class IcalSeries
{
public:
    explicit IcalSeries(const Repeat& repeat)
        : m_iterator(
            icalrecur_iterator_new(icalrecurrencetype_from_string(repeat.rule.c_str()), icalOf(repeat.first)))
    {
    }
    ~IcalSeries() { icalrecur_iterator_free(m_iterator); }
    IcalSeries(const IcalSeries&) = delete;
    IcalSeries& operator=(const IcalSeries&) = delete;

    std::optional<Moment> next()
    {
        const icaltimetype found = icalrecur_iterator_next(m_iterator);
        return icaltime_is_null_time(found)
            ? std::nullopt
            : std::optional(composeMoment(
                QDate(found.year, found.month, found.day), QTime(found.hour, found.minute, found.second)));
    }

private:
    icalrecur_iterator* m_iterator;
};

} // namespace

class OtherCalculationTest : public TestCase
{
    Q_OBJECT

private slots:
    void dateutilFindsTheSameMoments();
    void libicalFindsTheSameMoments();
};

void OtherCalculationTest::dateutilFindsTheSameMoments()
{
    RandomRules random;
    QByteArray text;
    int found = 0;
    for (int i = 0; i < Rules; ++i) {
        const Repeat repeat{.rule = random.rule().toStdString(), .first = random.first()};
        QVERIFY2(RepeatRules::isUsable(repeat.rule), repeat.rule.c_str());
        // dateutil goes there moment by moment.
        const Moment after = repeat.first + days(random.below(3 * 365) - 10);
        const Moment horizon = after + days(9 * 365);
        std::vector<Moment> moments;
        for (auto moment = RepeatRules::next(repeat, after);
             moment && *moment <= horizon && moments.size() < Most;
             moment = RepeatRules::next(repeat, *moment)) {
            moments.push_back(*moment);
        }
        QCOMPARE(RepeatRules::count(repeat, after, horizon, Most), static_cast<int>(moments.size()));
        QByteArrayList texts;
        for (const Moment moment : moments) {
            texts.append(QByteArray::fromStdString(storedText(moment)));
        }
        found += static_cast<int>(moments.size());
        text += QByteArrayList{QByteArray::fromStdString(repeat.rule),
                    QByteArray::fromStdString(storedText(repeat.first)),
                    QByteArray::fromStdString(storedText(after)),
                    QByteArray::fromStdString(storedText(horizon)), texts.join(',')}
                    .join('\t')
            + '\n';
    }
    QVERIFY2(found > 2 * Rules, qPrintable(QString::number(found)));
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("moments"));
    writeText(file, text);
    QProcess other;
    other.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(AMBERTASK_COMPARISON), file});
    QVERIFY(other.waitForFinished(-1));
    QCOMPARE(other.readAllStandardError(), QByteArray());
    QCOMPARE(other.readAllStandardOutput(), QByteArray::number(Rules) + " compared\n");
    QCOMPARE(other.exitCode(), 0);
}

// Of the rules that the program's own window makes: of others, libical 3.0.16 ends FREQ=DAILY;BYMONTHDAY=-19
// at once, comes twice to a day that is named twice, and crashes.
void OtherCalculationTest::libicalFindsTheSameMoments()
{
    RandomRules random;
    int compared = 0;
    for (int i = 0; i < Rules; ++i) {
        const Moment first = std::chrono::floor<std::chrono::minutes>(random.first());
        const auto pattern = patternOf(random.rule().toStdString(), first);
        const Repeat repeat{.rule = pattern ? ruleOf(*pattern, first) : std::string(), .first = first};
        if (!pattern || !RepeatRules::next(repeat, first)) {
            continue;
        }
        IcalSeries theirs(repeat);
        auto other = theirs.next();
        if (other != first) {
            // It leaves a first moment out that the rule does not name, and does not count it.
            continue;
        }
        auto ours = std::optional(first);
        for (int place = 0; place < Most && ours; ++place) {
            ours = RepeatRules::next(repeat, *ours);
            other = theirs.next();
            QVERIFY2(ours == other,
                qPrintable(QString::fromStdString(repeat.rule + " from " + storedText(first))));
            ++compared;
        }
    }
    QVERIFY2(compared > Rules / 2, qPrintable(QString::number(compared)));
}

AMBERTASK_TEST_MAIN(OtherCalculationTest)

#include "tst_other_calculation.moc"

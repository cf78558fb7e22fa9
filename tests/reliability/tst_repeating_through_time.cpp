#include "ClockChanges.h"
#include "RepeatedTask.h"
#include "TimeTravel.h"
#include "support/TestMain.h"

#include <QRegularExpression>
#include <QTest>
#include <functional>
#include <map>

using namespace std::chrono_literals;
using std::chrono::sys_seconds;

namespace
{

/// What the user does with a reminder that comes.
enum class Answer { Dismiss, DismissAll, Complete, Later, None };
/// What the machine does while clocks are set.
enum class Absence { None, Asleep, OffForDays, OffForMinutes };

/// How long before and after clocks are set the user is watched.
constexpr auto Before = 50h;
constexpr auto After = 74h;

struct Rule {
    const char* text;
    std::function<bool(std::chrono::local_days day, std::chrono::local_days first)> isOn;
};

/// Each names the day on which clocks are set: a Sunday, or the Friday that was none.
std::vector<Rule> rules()
{
    using namespace std::chrono;
    return {{"FREQ=DAILY",
                [](auto, auto) {
                    return true;
                }},
        {"FREQ=DAILY;INTERVAL=3",
            [](auto day, auto first) {
                return (day - first).count() % 3 == 0;
            }},
        {"FREQ=WEEKLY;BYDAY=FR,SU",
            [](auto day, auto) {
                return weekday(day) == Friday || weekday(day) == Sunday;
            }},
        {"FREQ=MONTHLY", [](auto day, auto first) {
             return year_month_day(day).day() == year_month_day(first).day();
         }}};
}

QString wave(qint32 id)
{
    return QStringLiteral("%1.wav").arg(id);
}

/// Around the time that is left out, or comes twice.
std::vector<Moment> momentsAround(const ClockChange& change)
{
    const Moment end = change.unset() + std::max(change.by, 0min);
    const Moment begin = change.unset() + std::min(change.by, 0min);
    return {begin - 1min, begin, begin + (end - begin) / 2, end - 1min, end, end + 10min};
}

/// Tasks of all rules at all these moments, and the account that is kept of them.
class Household
{
public:
    Household(TimeTravel& travel, const ClockChange& change);

    /// Lives from `Before` to `After`.
    void live(Answer answer, Absence absence);
    QStringList faults() const { return m_faults; }

private:
    void add(const Rule& rule, Moment moment, std::chrono::minutes lead);
    void liveUntil(sys_seconds end, Answer answer);
    void look();
    void answer(Answer answer);
    void answer(qint32 id, Answer answer);
    void compareWithFile();
    void compareInTheEnd(Answer answer);
    void complain(qint32 id, const QString& what);

    TimeTravel& m_travel;
    sys_seconds m_change;
    sys_seconds m_instant;
    Moment m_latest{}; ///< that clocks have shown
    std::map<qint32, RepeatedTask> m_tasks;
    std::map<qint32, int> m_answered; ///< the numbers of times that were in the answered rows
    QStringList m_faults;
};

Household::Household(TimeTravel& travel, const ClockChange& change)
    : m_travel(travel), m_change(change.instant), m_instant(change.instant - Before)
{
    m_travel.setInstant(m_instant);
    m_latest = m_travel.now();
    // All pairs of a rule and a moment, and with each lead each of both.
    constexpr std::array<std::chrono::minutes, 3> Leads{0min, 15min, -20min};
    std::size_t number = 0;
    for (const Rule& rule : rules()) {
        for (const Moment moment : momentsAround(change)) {
            add(rule, moment, Leads.at(number % Leads.size()));
            ++number;
        }
        ++number;
    }
    m_travel.start();
}

void Household::add(const Rule& rule, Moment moment, std::chrono::minutes lead)
{
    using namespace std::chrono;
    // Every month has been named for two years, and 735 days are whole weeks.
    const local_days day = floor<days>(moment);
    const bool isMonthly = rule.text == std::string_view("FREQ=MONTHLY");
    const local_days first = isMonthly ? local_days(year_month_day(day) - years(2)) : day - days(735);
    std::vector<Moment> series;
    for (local_days other = first; other < day + days(100); other += days(1)) {
        if (other == first || rule.isOn(other, first)) {
            series.push_back(other + timeOfDayOf(moment));
        }
    }
    const RepeatedTask task(std::move(series), lead, m_travel.now() + 1h);
    TestDatabase& database = m_travel.program().database();
    const auto id = static_cast<qint32>(m_tasks.size()) + 1;
    const qint32 added = aTask(database)
                             .dueAt(task.due)
                             .remindingAt(task.reminder)
                             .sounding(wave(id))
                             .repeating(rule.text)
                             .add();
    QCOMPARE(added, id);
    database.sql(
        QStringLiteral("update repeats set first_moment='%1' where of_task=%2")
            .arg(QString::fromStdString(storedText(first + timeOfDayOf(moment))), QString::number(id)));
    m_tasks.emplace(id, task);
}

void Household::live(Answer answer, Absence absence)
{
    constexpr std::array<std::chrono::seconds, 4> Absences{0s, 90min, 26h, 10min};
    const std::chrono::seconds time = Absences.at(static_cast<std::size_t>(absence));
    liveUntil(m_change - time, answer);
    if (absence == Absence::OffForDays || absence == Absence::OffForMinutes) {
        m_travel.program().kill();
    }
    m_instant = m_change + time;
    m_travel.setInstant(m_instant);
    if (!m_travel.program().isRunning()) {
        m_travel.start();
    }
    liveUntil(m_change + After, answer);
    compareInTheEnd(answer);
}

/// Looks every five minutes while clocks are set, otherwise every hour.
void Household::liveUntil(sys_seconds end, Answer answer)
{
    for (;;) {
        look();
        this->answer(answer);
        const bool isNear = m_instant >= m_change - 2h && m_instant < m_change + 2h;
        m_instant += isNear ? 5min : 60min;
        if (m_instant >= end) {
            return;
        }
        m_travel.setInstant(m_instant);
    }
}

/// A tick, after which exactly those are listed that wait, each with the number of its times.
void Household::look()
{
    static const QRegularExpression number(QStringLiteral(R"(\((\d+) times since )"));
    m_travel.runFor(0s);
    const Moment now = m_travel.now();
    m_latest = std::max(m_latest, now);
    const QHash<qint32, QString> texts = m_travel.program().listedTexts();
    for (auto& [id, task] : m_tasks) {
        task.tick(now);
        if (texts.contains(id) != task.waits(now)) {
            complain(id, task.waits(now) ? QStringLiteral("is not listed") : QStringLiteral("is listed"));
        }
        const auto match = number.match(texts.value(id));
        const int came = match.hasMatch() ? match.captured(1).toInt() : 1;
        if (texts.contains(id) && came != task.came(now)) {
            complain(id, QStringLiteral("has come %1 times, not %2").arg(came).arg(task.came(now)));
        }
    }
}

void Household::answer(Answer answer)
{
    const QList<qint32> listed = m_travel.program().listed();
    if (listed.isEmpty() || answer == Answer::None) {
        return;
    }
    if (answer == Answer::DismissAll) {
        m_travel.program().dismissAll();
    }
    for (const qint32 id : listed) {
        m_answered[id] += m_tasks.at(id).came(m_travel.now());
        this->answer(id, answer);
    }
    compareWithFile();
}

void Household::answer(qint32 id, Answer answer)
{
    RepeatedTask& task = m_tasks.at(id);
    const Moment now = m_travel.now();
    if (answer == Answer::Later && !task.isPutOff) {
        const Moment later = toMinute(now) + 20min;
        m_travel.program().remindLater(id, later);
        task.remindAt(later);
    } else if (answer == Answer::Complete) {
        m_travel.program().completeListed(id);
        task.complete(now);
    } else {
        if (answer != Answer::DismissAll) {
            m_travel.program().dismiss(id);
        }
        task.dismiss(now);
    }
}

void Household::compareWithFile()
{
    for (const QVariantList& row : m_travel.program().database().rows(QStringLiteral(
             "select task_id,task_due_date,reminder_date_time,done,reminder_on||dismissed||task_status "
             "from tasks inner join repeats on task_id=of_task"))) {
        const RepeatedTask& task = m_tasks.at(row[0].toInt());
        const QStringList stored{row[1].toString(), row[2].toString(), row[3].toString(), row[4].toString()};
        const QStringList expected{QString::fromStdString(storedText(task.due)),
            QString::fromStdString(storedText(task.reminder)), QString::number(task.done),
            QStringLiteral("100")};
        if (stored != expected) {
            complain(row[0].toInt(),
                QStringLiteral("is stored as %1, not %2").arg(stored.join(u' '), expected.join(u' ')));
        }
    }
}

/// Whatever the account says: no occurrence is lost, and none comes twice.
void Household::compareInTheEnd(Answer answer)
{
    for (const auto& [id, task] : m_tasks) {
        const auto sounded = m_travel.program().machine().played.count(wave(id));
        if (sounded != task.rings) {
            complain(id, QStringLiteral("has sounded %1 times, not %2").arg(sounded).arg(task.rings));
        }
        if (task.rungTwice > 0) {
            complain(id, QStringLiteral("has rung twice for the same moment"));
        }
        const Moment now = m_travel.now();
        const int came = m_answered[id] + (task.waits(now) ? task.came(now) : 0) + task.passedOver;
        if (answer != Answer::Later && came != task.cameInAll(m_latest)) {
            complain(id,
                QStringLiteral("has come %1 times in all, not %2").arg(came).arg(task.cameInAll(m_latest)));
        }
    }
    compareWithFile();
    m_faults.append(m_travel.faults());
}

void Household::complain(qint32 id, const QString& what)
{
    const auto texts = m_travel.program().database().rows(
        QStringLiteral("select rule,first_moment,lead from repeats where of_task=%1").arg(id));
    const QVariantList repeat = texts.value(0);
    m_faults.append(QStringLiteral("%1: %2 from %3, %4 minutes before: %5")
                        .arg(QString::fromStdString(storedText(m_travel.now())), repeat.value(0).toString(),
                            repeat.value(1).toString(), repeat.value(2).toString(), what));
}

} // namespace

/// Tasks that repeat, while clocks are set in the zone of this process: every time comes up once, or is
/// counted.
class RepeatingThroughTimeTest : public TestCase
{
    Q_OBJECT

private slots:
    void noTimeIsLostAndNoneComesTwice_data();
    void noTimeIsLostAndNoneComesTwice();
};

void RepeatingThroughTimeTest::noTimeIsLostAndNoneComesTwice_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("absence");
    constexpr std::array Answers{"dismissed", "all dismissed", "completed", "put off", "not answered"};
    constexpr std::array Machines{"", ", asleep", ", off for days", ", off for minutes"};
    for (const bool forward : {true, false}) {
        for (std::size_t answer = 0; answer < Answers.size(); ++answer) {
            for (std::size_t machine = 0; machine < Machines.size(); ++machine) {
                QTest::addRow("clocks go %s, %s%s", forward ? "forward" : "back", Answers.at(answer),
                    Machines.at(machine))
                    << forward << static_cast<int>(answer) << static_cast<int>(machine);
            }
        }
    }
}

void RepeatingThroughTimeTest::noTimeIsLostAndNoneComesTwice()
{
    QFETCH(const bool, forward);
    QFETCH(const int, answer);
    QFETCH(const int, absence);
    const ClockChange change = forward ? forwardInThisZone() : backInThisZone();
    QVERIFY(change.isReal());
    TimeTravel travel(change.instant);
    Household household(travel, change);
    household.live(static_cast<Answer>(answer), static_cast<Absence>(absence));
    QCOMPARE(household.faults().mid(0, 5).join(u'\n'), QString());
}

AMBERTASK_TEST_MAIN(RepeatingThroughTimeTest)
#include "tst_repeating_through_time.moc"

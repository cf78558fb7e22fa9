#include "ExchangeUnderTest.h"
#include "exchange/CalendarParts.h"
#include "exchange/CsvRows.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

#include <QFile>

namespace
{

/// A beginning, a piece that is repeated, and an end; of any size, and never in memory.
class RepeatedPiece final : public QIODevice
{
public:
    RepeatedPiece(QByteArray begin, QByteArray piece, qint64 count, QByteArray end)
        : m_begin(std::move(begin)), m_piece(std::move(piece)), m_end(std::move(end)), m_left(count)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        m_now = m_begin;
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* bytes, qint64 size) override
    {
        qint64 done = 0;
        while (done < size) {
            if (m_place == m_now.size() && !goOn()) {
                break;
            }
            const qint64 part = std::min<qint64>(size - done, m_now.size() - m_place);
            memcpy(bytes + done, m_now.constData() + m_place, static_cast<std::size_t>(part));
            m_place += part;
            done += part;
        }
        return done;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    bool goOn()
    {
        m_place = 0;
        if (m_left > 0) {
            --m_left;
            m_now = m_piece;
            return true;
        }
        m_now = std::exchange(m_end, {});
        return !m_now.isEmpty();
    }

    QByteArray m_begin;
    QByteArray m_piece;
    QByteArray m_end;
    QByteArray m_now;
    qint64 m_left;
    qint64 m_place = 0;
};

/// The most memory that the process has had, in bytes, since the last reset.
double mostMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).replace("kB", "").trimmed().toDouble() * 1024;
            }
        }
    }
    return 0;
}

void resetMostMemory()
{
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (peak.open(QIODevice::WriteOnly)) {
        peak.write("5");
    }
}

const QByteArray Begin("BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:a\r\nSUMMARY:Task\r\n");
const QByteArray End("END:VTODO\r\nBEGIN:VTODO\r\nUID:b\r\nSUMMARY:Next\r\nEND:VTODO\r\nEND:VCALENDAR\r\n");
constexpr qint64 Mebi = qint64{1024} * 1024;

/// So many mebibytes; with the sanitizer, which keeps what was freed for a while, a gibibyte more.
double allowed(double mebibytes)
{
#ifdef __SANITIZE_ADDRESS__
    mebibytes += 1024;
#endif
    return mebibytes * Mebi;
}

} // namespace

class ExchangeLimitsTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsTooLargeIsRefusedAndTheRestComesIn_data();
    void whatIsTooLargeIsRefusedAndTheRestComesIn();
    void aLargeTextComesIn();
    void gigabytesOfOtherThingsTakeNoMemory_data();
    void gigabytesOfOtherThingsTakeNoMemory();
    void rowsThatAreTooLargeAreRefused_data();
    void rowsThatAreTooLargeAreRefused();
    void ofManyUnreadablePartsTheFirstAreNamed();
};

void ExchangeLimitsTest::whatIsTooLargeIsRefusedAndTheRestComesIn_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<qint64>("count");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a line of two gigabytes")
        << QByteArray("DESCRIPTION:") << QByteArray(Mebi, 'x') << qint64(2048) << QByteArray("\r\n")
        << QStringLiteral("too long");
    QTest::newRow("a folded line of a gigabyte")
        << QByteArray("DESCRIPTION:") << QByteArray("\r\n " + QByteArray(Mebi, 'x')) << qint64(1024)
        << QByteArray("\r\n") << QStringLiteral("too long");
    QTest::newRow("a million alarms")
        << QByteArray() << QByteArray("BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT5M\r\nEND:VALARM\r\n")
        << qint64(1'000'000) << QByteArray() << QStringLiteral("too large");
    QTest::newRow("many long lines") << QByteArray() << QByteArray("X-A:" + QByteArray(Mebi, 'x') + "\r\n")
                                     << qint64(300) << QByteArray() << QStringLiteral("too large");
    QTest::newRow("parts in parts in parts")
        << QByteArray() << QByteArray("BEGIN:X-DEEP\r\n") << qint64(1'000'000) << QByteArray()
        << QStringLiteral("too deeply");
}

void ExchangeLimitsTest::whatIsTooLargeIsRefusedAndTheRestComesIn()
{
    QFETCH(const QByteArray, begin);
    QFETCH(const QByteArray, piece);
    QFETCH(const qint64, count);
    QFETCH(const QByteArray, end);
    QFETCH(const QString, reason);
    ExchangeUnderTest under;
    RepeatedPiece file(Begin + begin, piece, count, end + End);
    resetMostMemory();
    const double before = mostMemory();
    const ImportPlan plan =
        under.exchange.plan(file, ExchangeFormat::ICalendar, under.database.engine(), nullptr);
    QVERIFY(mostMemory() - before < allowed(200));
    QCOMPARE(plan.unreadableParts, 1);
    QCOMPARE(plan.unreadable.first().line, 2);
    QCOMPARE(plan.unreadable.first().name, QStringLiteral("Task"));
    QVERIFY2(plan.unreadable.first().reason.contains(reason), qPrintable(plan.unreadable.first().reason));
    QCOMPARE(plan.added, 1);
    QCOMPARE(plan.tasks.front().task.name, std::string("Next"));
}

void ExchangeLimitsTest::aLargeTextComesIn()
{
    ExchangeUnderTest from;
    TaskRecord task;
    task.name = "Task";
    task.category = "Work";
    task.due = task.reminder = at(3, 1, 12, 0);
    task.description = std::string(8 * Mebi, '\n');
    TaskStoring storing(from.database.engine());
    storing.put(task);
    storing.finish();
    for (const ExchangeFormat format : {ExchangeFormat::ICalendar, ExchangeFormat::Csv}) {
        ExchangeUnderTest to;
        QCOMPARE(to.imported(from.exported(format), format).added, 1);
        QVERIFY(to.task().description == task.description);
    }
}

void ExchangeLimitsTest::gigabytesOfOtherThingsTakeNoMemory_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("events") << QByteArray(
        "BEGIN:VEVENT\r\nSUMMARY:" + QByteArray(100'000, 'x') + "\r\nEND:VEVENT\r\n");
    QTest::newRow("lines of the calendar") << QByteArray("X-A:" + QByteArray(100'000, 'x') + "\r\n");
    QTest::newRow("time zones") << QByteArray("BEGIN:VTIMEZONE\r\nTZID:" + QByteArray(100'000, 'x')
        + "\r\nBEGIN:STANDARD\r\nTZOFFSETFROM:+0000\r\nTZOFFSETTO:+0100\r\nDTSTART:19700101T000000\r\n"
          "END:STANDARD\r\nEND:VTIMEZONE\r\n");
    QTest::newRow("tasks without an end")
        << QByteArray("BEGIN:VTODO\r\nSUMMARY:" + QByteArray(100'000, 'x') + "\r\n");
    QTest::newRow("ends without a beginning") << QByteArray("END:VTODO\r\nEND:VALARM\r\n");
}

void ExchangeLimitsTest::gigabytesOfOtherThingsTakeNoMemory()
{
    QFETCH(const QByteArray, piece);
    ExchangeUnderTest under;
    RepeatedPiece file("BEGIN:VCALENDAR\r\n", piece, 5'000, "BEGIN:VTODO\r\nSUMMARY:Task\r\n" + End);
    resetMostMemory();
    const double before = mostMemory();
    const ImportPlan plan =
        under.exchange.plan(file, ExchangeFormat::ICalendar, under.database.engine(), nullptr);
    QVERIFY(mostMemory() - before < allowed(100));
    QCOMPARE(plan.added, 2);
}

void ExchangeLimitsTest::rowsThatAreTooLargeAreRefused_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<qint64>("count");
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("a field of two gigabytes")
        << QByteArray("\"") << QByteArray(Mebi, 'x') << qint64(2048) << QByteArray("\"\n");
    QTest::newRow("a field of many lines")
        << QByteArray("\"") << QByteArray(QByteArray(Mebi, 'x') + "\n") << qint64(100) << QByteArray("\"\n");
    QTest::newRow("a million columns")
        << QByteArray("x") << QByteArray(",x") << qint64(1'000'000) << QByteArray("\n");
}

void ExchangeLimitsTest::rowsThatAreTooLargeAreRefused()
{
    QFETCH(const QByteArray, begin);
    QFETCH(const QByteArray, piece);
    QFETCH(const qint64, count);
    QFETCH(const QByteArray, end);
    ExchangeUnderTest under;
    RepeatedPiece file("Name\nfirst\n" + begin, piece, count, end + "last\n");
    resetMostMemory();
    const double before = mostMemory();
    const ImportPlan plan = under.exchange.plan(file, ExchangeFormat::Csv, under.database.engine(), nullptr);
    QVERIFY(mostMemory() - before < allowed(400));
    QVERIFY(plan.unreadableParts >= 1);
    QCOMPARE(plan.unreadable.first().line, 3);
    QVERIFY(plan.unreadable.first().reason.contains(QLatin1String("too ")));
    QCOMPARE(plan.tasks.front().task.name, std::string("first"));
}

void ExchangeLimitsTest::ofManyUnreadablePartsTheFirstAreNamed()
{
    ExchangeUnderTest under;
    RepeatedPiece file("Name,Due\n", "Task,soon\n", 100'000, {});
    const ImportPlan plan = under.exchange.plan(file, ExchangeFormat::Csv, under.database.engine(), nullptr);
    QCOMPARE(plan.unreadableParts, 100'000);
    QCOMPARE(plan.unreadable.size(), ImportPlan::MostNamed);
}

AMBERTASK_TEST_MAIN(ExchangeLimitsTest)

#include "tst_exchange_limits.moc"

#include "ProgramFixture.h"
#include "app/CommandRun.h"
#include "app/TaskListModel.h"
#include "exchange/Exchange.h"
#include "reminders/AlertListModel.h"
#include "reminders/frmAlerts.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "system/Modules.h"
#include "system/StandardStreams.h"

#include <QBuffer>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// A running copy, and commands beside it on the same data file.
struct CommandsBeside : ProgramFixture {
    void startProgram()
    {
        start();
        program.loadDialogs();
        // A test ticks.
        control<QTimer>(program.alerts(), "tmrTasksChecker")->setInterval(24h);
    }
    void tick() { program.alerts().tmrTasksChecker_Timer(); }
    CommandRun::Status run(const QStringList& words)
    {
        QTemporaryFile file;
        file.open();
        OutputStream stream(file.handle());
        QBuffer errors;
        errors.open(QIODevice::WriteOnly);
        CommandRun command({{QString(), QString(), QString(), database.folder()}, database.folder(),
            database.clock(), [this] { return loadExchange(modules); }, stream, errors});
        const CommandRun::Status status = command.run(CommandLine::read(words));
        output = QString::fromUtf8(contentOf(file.fileName()));
        return status;
    }
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    CommandRun::Status importFile(const char* name)
    {
        return run({QStringLiteral("--import"), path(name), QStringLiteral("--yes")});
    }
    void write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
    }
    qint32 addDaily()
    {
        return aTask(database)
            .named(QStringLiteral("daily"))
            .dueAt(database.clock().now() - 72h)
            .remindingAt(database.clock().now() - 72h)
            .repeating()
            .add();
    }
    void dismiss()
    {
        grid(program.alerts())->selectOnly(0);
        press(program.alerts(), "btnDismiss");
    }
    QString state()
    {
        return database
            .sql(QStringLiteral(
                "select substr(task_due_date,6,11)||' '||substr(reminder_date_time,6,11)||' '||"
                "rule||' '||first_moment||' '||lead||' '||done from tasks inner join repeats on "
                "task_id=of_task"))
            .toString();
    }

    QTemporaryDir folder;
    Modules modules{
        QFileInfo(QStringLiteral(AMBERTASK_EXCHANGE_MODULE)).path(), {QLatin1String(ExchangeModule)}};
    QString output;
};

const QByteArray Weekdays =
    QByteArray("BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Somebody//Else//EN\nBEGIN:VTODO\nUID:one@example\n"
               "DTSTAMP:20260101T000000Z\nSUMMARY:imported\nDUE:20260112T100000\n"
               "RRULE:FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR\nBEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:x\n"
               "TRIGGER;RELATED=END:-PT10M\nEND:VALARM\nEND:VTODO\nEND:VCALENDAR\n")
        .replace("\n", "\r\n");

} // namespace

/// What commands do with tasks that repeat, alone and beside a running copy.
class CommandRepeatsTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsImportedBesideARunningCopyRepeatsThere()
    {
        CommandsBeside f;
        f.startProgram();
        f.write("a.ics", Weekdays);
        QCOMPARE(f.importFile("a.ics"), CommandRun::Done);
        f.tick();
        const QString sign =
            f.grid(f.main())->model()->index(0, TaskListModel::Reminder).data(Qt::ToolTipRole).toString();
        QVERIFY2(sign.contains(QLatin1String("Repeats every weekday")), qPrintable(sign));
        // Its reminders of the past are not made up for.
        QVERIFY(!f.program.alerts().isVisible());
        QCOMPARE(f.state(),
            QStringLiteral(
                "01-12 10:00 01-16 09:50 FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR 2026-01-12 10:00:00 10 0"));
        f.database.clock().step(24h);
        f.tick();
        QVERIFY(f.program.alerts().isVisible());
    }

    void anExportSaysWhatTheRunningCopyHasMovedOn_data() { formats(); }
    void anExportSaysWhatTheRunningCopyHasMovedOn()
    {
        QFETCH(const QByteArray, file);
        CommandsBeside f;
        f.addDaily();
        f.startProgram();
        f.tick();
        f.dismiss();
        QCOMPARE(f.run({QStringLiteral("--export"), f.path(file)}), CommandRun::Done);
        const QByteArray written = contentOf(f.path(file));
        QVERIFY2(written.contains("FREQ=DAILY"), written);
        QCOMPARE(f.importFile(file), CommandRun::Done);
        QVERIFY2(f.output.contains(QLatin1String("There is nothing to import.")), qPrintable(f.output));
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-16 10:00 FREQ=DAILY 2026-01-12 10:00:00 0 4"));
    }

    void anotherCopyTakesTheTaskUpWhereItIs()
    {
        CommandsBeside f;
        f.addDaily();
        f.startProgram();
        f.tick();
        f.dismiss();
        QCOMPARE(f.run({QStringLiteral("--export"), f.path("a.ics")}), CommandRun::Done);
        CommandsBeside other;
        other.startProgram();
        other.write("a.ics", contentOf(f.path("a.ics")));
        QCOMPARE(other.importFile("a.ics"), CommandRun::Done);
        QCOMPARE(other.state(), f.state());
    }

    void aRuleThatWasChangedInTheFileCountsInTheRunningCopy()
    {
        CommandsBeside f;
        f.write("a.ics", QByteArray(Weekdays).replace("20260112", "20260116"));
        QCOMPARE(f.importFile("a.ics"), CommandRun::Done);
        f.startProgram();
        f.database.clock().step(25h);
        f.tick();
        QVERIFY(f.program.alerts().isVisible());
        f.write("b.ics",
            QByteArray(Weekdays)
                .replace("20260112", "20260116")
                .replace("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR", "FREQ=DAILY;INTERVAL=3"));
        QCOMPARE(f.importFile("b.ics"), CommandRun::Done);
        QVERIFY2(f.output.contains(QLatin1String("Changed: imported")), qPrintable(f.output));
        f.tick();
        QVERIFY(f.program.alerts().isVisible());
        f.dismiss();
        QCOMPARE(f.state(),
            QStringLiteral("01-19 10:00 01-19 09:50 FREQ=DAILY;INTERVAL=3 2026-01-16 10:00:00 10 1"));
    }

private:
    static void formats()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("iCalendar") << QByteArray("a.ics");
        QTest::newRow("CSV") << QByteArray("a.csv");
    }
};

AMBERTASK_TEST_MAIN(CommandRepeatsTest)
#include "tst_command_repeats.moc"

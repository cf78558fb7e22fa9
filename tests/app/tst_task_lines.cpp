#include "app/TaskLines.h"
#include "data/TaskRecord.h"
#include "support/TestMain.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace
{

using namespace std::chrono_literals;

TaskRecord sample()
{
    TaskRecord task;
    task.id = 7;
    task.name = "Call \"Bob\"";
    task.description = "first\tline\r\nsecond \\ line";
    task.status = 3;
    task.categoryId = 2;
    task.category = "Work";
    task.due = makeMoment(std::chrono::January / 31 / 2027, 14h + 5min);
    task.periority = 0;
    task.reminderOn = true;
    task.reminder = makeMoment(std::chrono::January / 31 / 2027, 9h + 7s);
    task.sound = "bell.wav";
    task.file = "/bin/true";
    task.played = true;
    return task;
}

} // namespace

/// How the command line writes tasks.
class TaskLinesTest : public TestCase
{
    Q_OBJECT

private slots:
    void theColumnsAreNamedInTheirOrder()
    {
        QCOMPARE(tabbedNames(),
            QByteArray("task_id\ttask_name\ttask_desc\ttask_status\tcat_id\ttask_due_date\ttask_periority\t"
                       "reminder_on\treminder_date_time\treminder_sound\treminder_file\tplayed\tdismissed\t"
                       "category\n"));
    }

    void aTaskIsOneLineWhateverItsTextsHold()
    {
        QCOMPARE(tabbedLine(sample()),
            QByteArray(
                "7\tCall \"Bob\"\tfirst\\tline\\r\\nsecond \\\\ line\t3\t2\t2027-01-31 14:05:00\t0\t1\t"
                "2027-01-31 09:00:07\tbell.wav\t/bin/true\t1\t0\tWork\n"));
    }

    void nothingInATextCommandsATerminalOrEndsALine()
    {
        QCOMPARE(onOneLine(QStringLiteral("\u001b[2J\u0007\u007f\u0085\u2028\u2029\u00e4\u65e5")),
            QStringLiteral("\\u001b[2J\\u0007\\u007f\\u0085\\u2028\\u2029\u00e4\u65e5"));
        QCOMPARE(onOneLine(QString(QChar(0))), QStringLiteral("\\u0000"));
    }

    void theObjectHasTheColumnsByTheirNames()
    {
        const QByteArray json = jsonObject(sample());
        QVERIFY(!json.contains('\n'));
        const QJsonObject expected{{"task_id", 7}, {"task_name", "Call \"Bob\""},
            {"task_desc", "first\tline\r\nsecond \\ line"}, {"task_status", 3}, {"cat_id", 2},
            {"task_due_date", "2027-01-31 14:05:00"}, {"task_periority", 0}, {"reminder_on", true},
            {"reminder_date_time", "2027-01-31 09:00:07"}, {"reminder_sound", "bell.wav"},
            {"reminder_file", "/bin/true"}, {"played", true}, {"dismissed", false}, {"category", "Work"}};
        QCOMPARE(QJsonDocument::fromJson(json).object(), expected);
    }

    void bytesThatAreNoUtf8BecomeReplacements()
    {
        TaskRecord task = sample();
        task.name = "a\xff"
                    "b";
        QVERIFY(QString::fromUtf8(tabbedLine(task)).contains(QStringLiteral("\ta\ufffdb\t")));
        QCOMPARE(QJsonDocument::fromJson(jsonObject(task)).object().value(QStringLiteral("task_name")),
            QJsonValue(QStringLiteral("a\ufffdb")));
    }
};

AMBERTASK_TEST_MAIN(TaskLinesTest)
#include "tst_task_lines.moc"

#include "ExchangeUnderTest.h"
#include "data/TaskCodes.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "tests/data/HardTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <libical/ical.h>

namespace
{

/// Texts that iCalendar can say.
QStringList texts()
{
    QStringList said = hardTexts();
    said.removeIf([](const QString& text) { return text.contains(u'\r'); });
    return said
        + QStringList{QStringLiteral("a,b;c\\d\\n"), QString(300, u'x'), QString(100, QChar(0x4e2d)),
            QStringLiteral("line\nline\n\nline"), QStringLiteral("BEGIN:VTODO\nEND:VCALENDAR"),
            QStringLiteral(u"\u2028\u0085")};
}

void fill(ExchangeUnderTest& under)
{
    int number = 0;
    for (const QString& text : texts()) {
        TaskBuilder task = aTask(under.database);
        task.named(text).describedAs(text).withStatus(number % 5).withPeriority(number % 3);
        task.sounding(text).starting(text);
        if (number % 2 == 0) {
            task.remindingAt(at(1, 15, 11, 0) - std::chrono::minutes(number * 37));
        }
        task.add();
        ++number;
    }
    // What cannot be said is replaced for others.
    aTask(under.database).named(QStringLiteral("a\rb\x01\x7f")).describedAs(QStringLiteral("\r\n\x1b")).add();
    under.imported(
        todoOf("SUMMARY:Other\nDUE:20260301T100000\nX-A;X-B=c:d\\,e;f\nRRULE:FREQ=DAILY\n"
               "ATTENDEE;CN=\"Some, Body\":mailto:a@example\nBEGIN:VALARM\nACTION:EMAIL\n"
               "ATTENDEE:mailto:a@example\nSUMMARY:s\nDESCRIPTION:d\nTRIGGER:-PT1H\nEND:VALARM\n"));
}

/// What the parser has noted beside the component and those in it.
QByteArrayList complaintsIn(icalcomponent* component)
{
    QByteArrayList found;
    for (icalproperty* note = icalcomponent_get_first_property(component, ICAL_XLICERROR_PROPERTY);
         note != nullptr; note = icalcomponent_get_next_property(component, ICAL_XLICERROR_PROPERTY)) {
        found.append(icalproperty_as_ical_string(note));
    }
    for (icalcomponent* part = icalcomponent_get_first_component(component, ICAL_ANY_COMPONENT);
         part != nullptr; part = icalcomponent_get_next_component(component, ICAL_ANY_COMPONENT)) {
        found += complaintsIn(part);
    }
    return found;
}

} // namespace

class OtherParsersTest : public TestCase
{
    Q_OBJECT

private slots:
    void libicalReadsEveryTaskWithoutAComplaint();
    void vobjectReadsEveryTaskWithoutAComplaint();
};

void OtherParsersTest::libicalReadsEveryTaskWithoutAComplaint()
{
    ExchangeUnderTest under;
    fill(under);
    icalcomponent* calendar = icalparser_parse_string(under.exported(ExchangeFormat::ICalendar).constData());
    const std::vector<TaskRecord> tasks = under.tasks();
    QVERIFY(calendar != nullptr && icalcomponent_isa(calendar) == ICAL_VCALENDAR_COMPONENT);
    QCOMPARE(complaintsIn(calendar).join('\n'), QByteArray());
    QVERIFY(icalrestriction_check(calendar) != 0);
    QCOMPARE(complaintsIn(calendar).join('\n'), QByteArray());
    std::size_t read = 0;
    for (icalcomponent* todo = icalcomponent_get_first_component(calendar, ICAL_VTODO_COMPONENT);
         todo != nullptr; todo = icalcomponent_get_next_component(calendar, ICAL_VTODO_COMPONENT)) {
        const TaskRecord& task = tasks.at(read++);
        QCOMPARE(std::string(icalcomponent_get_uid(todo)), task.uid);
        // It takes blanks around a text away.
        if (!task.name.empty() && task.name == QString::fromStdString(task.name).trimmed().toStdString()
            && task.name.find('\r') == std::string::npos) {
            QCOMPARE(std::string(icalcomponent_get_summary(todo)), task.name);
        }
        const icaltimetype due = icalcomponent_get_due(todo);
        QVERIFY(icaltime_as_timet(due) == task.due.time_since_epoch().count());
        QCOMPARE(icalcomponent_count_components(todo, ICAL_VALARM_COMPONENT),
            static_cast<int>(task.reminderOn) + static_cast<int>(task.name == "Other"));
    }
    QCOMPARE(read, tasks.size());
    icalcomponent_free(calendar);
}

void OtherParsersTest::vobjectReadsEveryTaskWithoutAComplaint()
{
    ExchangeUnderTest under;
    fill(under);
    const QString file = under.database.folder() + QStringLiteral("/tasks.ics");
    writeText(file, under.exported(ExchangeFormat::ICalendar));
    QProcess reader;
    reader.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(AMBERTASK_READER), file});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.readAllStandardError(), QByteArray());
    QCOMPARE(reader.exitCode(), 0);
    const QJsonArray read = QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
    const std::vector<TaskRecord> tasks = under.tasks();
    QCOMPARE(read.size(), static_cast<qsizetype>(tasks.size()));
    for (qsizetype i = 0; i < read.size(); ++i) {
        const QJsonObject found = read.at(i).toObject();
        const TaskRecord& task = tasks.at(static_cast<std::size_t>(i));
        if (task.name.find('\r') == std::string::npos) {
            QCOMPARE(found[QStringLiteral("name")].toString(), QString::fromStdString(task.name));
        }
        QCOMPARE(found[QStringLiteral("due")].toString(), QString::fromStdString(storedText(task.due)));
        if (task.reminderOn) {
            QCOMPARE(found[QStringLiteral("alarms")].toArray().first().toInt(),
                static_cast<int>((task.reminder - task.due).count()));
        }
    }
}

AMBERTASK_TEST_MAIN(OtherParsersTest)

#include "tst_other_parsers.moc"

#include "ExchangeUnderTest.h"
#include "support/TestMain.h"

#include <QElapsedTimer>

namespace
{

/// Two hours ahead of UTC, three in summer; a name that no system knows.
const QByteArray OwnZone("BEGIN:VTIMEZONE\nTZID:Far Away\n"
                         "BEGIN:STANDARD\nDTSTART:19701025T040000\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\n"
                         "TZOFFSETFROM:+0300\nTZOFFSETTO:+0200\nEND:STANDARD\n"
                         "BEGIN:DAYLIGHT\nDTSTART:19700329T030000\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3\n"
                         "TZOFFSETFROM:+0200\nTZOFFSETTO:+0300\nEND:DAYLIGHT\nEND:VTIMEZONE\n");

QByteArray todoIn(const QByteArray& zone, const QByteArray& due)
{
    return "BEGIN:VTODO\nUID:z\nSUMMARY:Task\nDUE;TZID=" + zone + ":" + due + "\nEND:VTODO\n";
}

} // namespace

// The machine is in London.
class TodoZonesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aMomentInAZoneBecomesLocalTime_data();
    void aMomentInAZoneBecomesLocalTime();
    void anUnknownZoneIsToldAndTakenAsLocalTime();
    void theSystemsZoneCountsMoreThanTheFiles();
    void aZoneThatTakesForEverIsNotWorkedOut_data();
    void aZoneThatTakesForEverIsNotWorkedOut();
};

void TodoZonesTest::aMomentInAZoneBecomesLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("due");
    QTest::addColumn<QString>("local");
    const auto row = [](const char* zone, const char* due, const char* local) {
        QTest::newRow((QByteArray(zone) + ' ' + due).constData())
            << QByteArray(zone) << QByteArray(due) << QString::fromLatin1(local);
    };
    row("Europe/Berlin", "20260115T120000", "2026-01-15 11:00:00");
    row("Europe/Berlin", "20260715T120000", "2026-07-15 11:00:00");
    row("America/New_York", "20260115T200000", "2026-01-16 01:00:00");
    row("Asia/Kolkata", "20260715T120000", "2026-07-15 07:30:00");
    row("Europe/Kyiv", "20260715T120000", "2026-07-15 10:00:00");
    row("/somewhere/else/America/Argentina/Buenos_Aires", "20260115T120000", "2026-01-15 15:00:00");
    row("\"Europe/Berlin\"", "20260115T120000", "2026-01-15 11:00:00");
    row("/freeassociation.sourceforge.net/Europe/Berlin", "20260115T120000", "2026-01-15 11:00:00");
    row("/mozilla.org/20050126_1/America/Argentina/Salta", "20260115T120000", "2026-01-15 15:00:00");
    row("W. Europe Standard Time", "20260115T120000", "2026-01-15 11:00:00");
    row("UTC", "20260715T120000", "2026-07-15 13:00:00");
    row("Far Away", "20260115T120000", "2026-01-15 10:00:00");
    row("Far Away", "20260715T120000", "2026-07-15 10:00:00");
    // The night in which clocks are set back and forward.
    row("Far Away", "20261025T030000", "2026-10-25 01:00:00");
    row("Europe/Berlin", "20260329T013000", "2026-03-29 00:30:00");
    // A day is the same everywhere.
    row("Asia/Kolkata", "20260715", "2026-07-15 23:59:00");
}

void TodoZonesTest::aMomentInAZoneBecomesLocalTime()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QByteArray, due);
    QFETCH(const QString, local);
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(calendarOf(OwnZone + todoIn(zone, due)));
    QCOMPARE(plan.unknownZones, 0);
    QCOMPARE(QString::fromStdString(storedText(plan.tasks.front().task.due)), local);
}

void TodoZonesTest::anUnknownZoneIsToldAndTakenAsLocalTime()
{
    for (const QByteArray& zone :
        {QByteArray("Far Away"), QByteArray("../zoneinfo/Europe/Berlin"), QByteArray(1'000'000, 'x')}) {
        ExchangeUnderTest under;
        const ImportPlan plan = under.planOf(calendarOf(todoIn(zone, "20260115T120000")));
        QCOMPARE(plan.unknownZones, 1);
        QVERIFY(plan.tasks.front().task.due == at(1, 15, 12, 0));
    }
}

void TodoZonesTest::theSystemsZoneCountsMoreThanTheFiles()
{
    ExchangeUnderTest under;
    const QByteArray wrong = QByteArray(OwnZone).replace("Far Away", "Europe/Berlin");
    const ImportPlan plan = under.planOf(calendarOf(wrong + todoIn("Europe/Berlin", "20260115T120000")));
    QVERIFY(plan.tasks.front().task.due == at(1, 15, 11, 0));
}

void TodoZonesTest::aZoneThatTakesForEverIsNotWorkedOut_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::newRow("every second") << QByteArray("FREQ=SECONDLY");
    QTest::newRow("every second of the year")
        << QByteArray("FREQ=YEARLY;BYHOUR=0,1,2,3;BYMINUTE=0,1,2,3;BYSECOND=0,1,2,3");
    QTest::newRow("every day") << QByteArray("FREQ=YEARLY;BYDAY=MO,TU,WE,TH,FR,SA,SU");
    QTest::newRow("a long one") << "FREQ=YEARLY;BYMONTH=" + QByteArray(1000, '1');
}

void TodoZonesTest::aZoneThatTakesForEverIsNotWorkedOut()
{
    QFETCH(const QByteArray, rule);
    const QByteArray zone = QByteArray(OwnZone).replace("FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10", rule);
    ExchangeUnderTest under;
    QElapsedTimer taken;
    taken.start();
    const ImportPlan plan = under.planOf(calendarOf(zone + todoIn("Far Away", "99991231T120000")));
    QVERIFY(taken.elapsed() < 5000);
    QCOMPARE(plan.unknownZones, 1);
}

AMBERTASK_TEST_MAIN(TodoZonesTest)

#include "tst_todo_zones.moc"

#include "data/SettingsStore.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

SettingsRecord allOn()
{
    return {true, true, true, QStringLiteral("Lemon"), true, true, true, true, true, true, true};
}

} // namespace

class TestSettingsStore : public TestCase
{
    Q_OBJECT

private slots:
    void aFreshDataFileHoldsTheShippedSettings();
    void readingSendsOneStatement();
    void everyColumnGoesIntoItsField_data();
    void everyColumnGoesIntoItsField();
    void anyNumberButZeroIsTrue();
    void anEmptyTableIsAnErrorThatNamesTheRow();
    void savingDeletesAndInserts();
    void whatWasSavedIsReadBack();
    void twoRowsBecomeOne();
    void aQuoteInTheSkinBreaksTheInsertAndLeavesTheTableEmpty();
    void aSkinNameThatHoldsAMarkerIsStoredAsItIs();
    void theRecordStaysWhenTheFileCannotBeWritten();
};

void TestSettingsStore::aFreshDataFileHoldsTheShippedSettings()
{
    TestDatabase database;
    const SettingsRecord settings = SettingsStore(database.engine()).read();
    const SettingsRecord shipped{
        false, true, false, QStringLiteral("Aqua"), true, true, true, true, false, true, true};
    QVERIFY(settings == shipped);
}

void TestSettingsStore::readingSendsOneStatement()
{
    TestDatabase database;
    SettingsStore(database.engine()).read();
    QCOMPARE(database.statements().take(), QStringList(QStringLiteral("select * from settings")));
    QCOMPARE(database.statements().opened(), 1);
    QCOMPARE(database.statements().closed(), 1);
}

void TestSettingsStore::everyColumnGoesIntoItsField_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<int>("position");
    const QStringList columns{QStringLiteral("always_on_top"), QStringLiteral("start_with_windows"),
        QStringLiteral("minimize_on_start"), QStringLiteral("show_task_status"),
        QStringLiteral("show_task_due_date"), QStringLiteral("show_task_periority"),
        QStringLiteral("show_task_reminder"), QStringLiteral("show_today_tasks"), QStringLiteral("show_grid"),
        QStringLiteral("show_ballon_icon")};
    for (int i = 0; i < columns.size(); ++i) {
        QTest::newRow(qPrintable(columns[i])) << columns[i] << i;
    }
}

void TestSettingsStore::everyColumnGoesIntoItsField()
{
    QFETCH(const QString, column);
    QFETCH(const int, position);
    TestDatabase database;
    SettingsRecord record;
    SettingsStore(database.engine()).save({}, record);
    database.sql(QStringLiteral("update settings set %1=1").arg(column));

    const SettingsRecord settings = SettingsStore(database.engine()).read();
    const QList<bool> fields{settings.always_on_top, settings.start_with_windows, settings.minimize_on_start,
        settings.show_task_status, settings.show_task_due_date, settings.show_task_periority,
        settings.show_task_reminder, settings.show_today_tasks, settings.show_grid,
        settings.show_ballon_icon};
    for (int i = 0; i < fields.size(); ++i) {
        QCOMPARE(fields[i], i == position);
    }
}

void TestSettingsStore::anyNumberButZeroIsTrue()
{
    TestDatabase database;
    database.sql(QStringLiteral("update settings set always_on_top=-1, show_grid=2, show_ballon_icon=0"));
    const SettingsRecord settings = SettingsStore(database.engine()).read();
    QVERIFY(settings.always_on_top);
    QVERIFY(settings.show_grid);
    QVERIFY(!settings.show_ballon_icon);
}

void TestSettingsStore::anEmptyTableIsAnErrorThatNamesTheRow()
{
    TestDatabase database;
    database.sql(QStringLiteral("delete from settings"));
    const auto error = caught([&] { SettingsStore(database.engine()).read(); });
    QVERIFY(error.has_value());
    QVERIFY2(error->text().contains(QStringLiteral("row of the table \"settings\" is missing")),
        qPrintable(error->text()));
}

void TestSettingsStore::savingDeletesAndInserts()
{
    TestDatabase database;
    SettingsRecord record;
    SettingsStore(database.engine())
        .save(
            {true, false, false, QStringLiteral("Aqua"), true, true, true, false, false, true, true}, record);
    QCOMPARE(database.statements().take(),
        QStringList({QStringLiteral("delete from settings"),
            QStringLiteral(
                "insert into settings([always_on_top],[start_with_windows],"
                "[minimize_on_start],[skin],[show_task_status],[show_task_due_date],[show_task_periority],"
                "[show_task_reminder],[show_today_tasks],[show_grid],[show_ballon_icon]) "
                "values(1,0,0,'Aqua',1,1,1,0,0,1,1)")}));
    QCOMPARE(database.statements().opened(), 1);
    QCOMPARE(database.statements().closed(), 1);
}

void TestSettingsStore::whatWasSavedIsReadBack()
{
    TestDatabase database;
    SettingsRecord record;
    SettingsStore(database.engine()).save(allOn(), record);
    QVERIFY(record == allOn());
    QVERIFY(SettingsStore(database.engine()).read() == allOn());
}

void TestSettingsStore::twoRowsBecomeOne()
{
    TestDatabase database;
    database.sql(QStringLiteral("insert into settings(skin) values('Second')"));
    SettingsRecord record;
    SettingsStore(database.engine()).save(allOn(), record);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from settings")).toInt(), 1);
}

void TestSettingsStore::aQuoteInTheSkinBreaksTheInsertAndLeavesTheTableEmpty()
{
    TestDatabase database;
    SettingsRecord settings = allOn();
    settings.skin = QStringLiteral("Bob's");
    SettingsRecord record;
    const auto error = caught([&] { SettingsStore(database.engine()).save(settings, record); });
    QVERIFY(error.has_value());
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from settings")).toInt(), 0);
    QVERIFY(record == SettingsRecord());
}

void TestSettingsStore::aSkinNameThatHoldsAMarkerIsStoredAsItIs()
{
    TestDatabase database;
    SettingsRecord settings;
    settings.skin = QStringLiteral("<task_status/>");
    SettingsRecord record;
    SettingsStore(database.engine()).save(settings, record);
    QCOMPARE(database.sql(QStringLiteral("select skin from settings")).toString(), settings.skin);
}

void TestSettingsStore::theRecordStaysWhenTheFileCannotBeWritten()
{
    TestDatabase database;
    QVERIFY(QFile::remove(database.dataFile()));
    SettingsRecord record = allOn();
    const auto error = caught([&] { SettingsStore(database.engine()).save({}, record); });
    QVERIFY(error.has_value());
    QCOMPARE(error->kind(), DatabaseError::Kind::Storage);
    QVERIFY(record == allOn());
}

AMBERTASK_TEST_MAIN(TestSettingsStore)
#include "tst_settings_store.moc"

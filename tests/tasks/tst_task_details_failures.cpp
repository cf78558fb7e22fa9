#include "data/ClsDatabase.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QFile>

class TestTaskDetailsFailures : public TestCase
{
    Q_OBJECT

private slots:
    void aLockedFileIsReportedAndTheInputStays();
    void aMissingFileIsReportedOnAnEditAndTheInputStays();
    void aTaskDeletedMeanwhileIsReportedAndTheInputStays();
    void aTaskForWhichThereIsNoNumberIsRefusedAndTheInputStays();
};

void TestTaskDetailsFailures::aLockedFileIsReportedAndTheInputStays()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtTask", QStringLiteral(" kept "));
    {
        Connection other = ClsDatabase(dialog.services.database.engine()).Connect();
        other.open();
        other.execute(QStringLiteral("update settings set skin='Aqua'"));
        dialog.services.dialogs.expectError(QStringLiteral("locked"));
        dialog.click("btnOk");
    }
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral(" kept "));
    QCOMPARE(dialog.facts, QStringList());
    QCOMPARE(dialog.services.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 0);

    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("kept"));
}

void TestTaskDetailsFailures::aMissingFileIsReportedOnAnEditAndTheInputStays()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("kept"));
    QVERIFY(QFile::remove(dialog.services.database.dataFile()));
    dialog.services.dialogs.expectError(QStringLiteral("data.dat"));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("kept"));
    QCOMPARE(dialog.form->tag(), QString::number(id));
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsFailures::aTaskDeletedMeanwhileIsReportedAndTheInputStays()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("kept"));
    dialog.services.database.sql(QStringLiteral("delete from tasks"));
    dialog.services.dialogs.expectError(QStringLiteral("The task no longer exists."));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("kept"));
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsFailures::aTaskForWhichThereIsNoNumberIsRefusedAndTheInputStays()
{
    TaskDialog dialog;
    const TestDatabase& database = dialog.services.database;
    const qint32 id = aTask(dialog.services.database).add();
    database.sql(QStringLiteral("update sqlite_sequence set seq=32767 where name='tasks'"));
    dialog.showValid();
    dialog.setText("txtTask", QStringLiteral(" kept "));
    dialog.services.dialogs.expectExclamationWith(QStringLiteral("no number left"));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral(" kept "));
    QCOMPARE(dialog.facts, QStringList());
    QCOMPARE(database.rows(QStringLiteral("select task_id from tasks")), (QList<QVariantList>{{qint64(id)}}));
    // One that is there can be changed all the same.
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.setText("txtTask", QStringLiteral("changed"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("changed"));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsFailures)
#include "tst_task_details_failures.moc"

#include "app/TasksPage.h"
#include "data/TaskReportQuery.h"
#include "support/TestMain.h"
#include "tests/app/ProgramFixture.h"

#include <QComboBox>
#include <QRadioButton>

/// "Print" on the page of tasks, in the whole program.
class PrintingTest : public TestCase
{
    Q_OBJECT

private:
    static QStringList namesIn(const ReportContent& content)
    {
        QStringList names;
        for (const std::vector<QString>& record : content.records) {
            names.append(record[1]);
        }
        return names;
    }

private slots:
    void theButtonPrintsWhatTheListShows()
    {
        ProgramFixture f;
        aTask(f.database).named(QStringLiteral("done")).withStatus(TaskStatus::Completed).add();
        aTask(f.database).named(QStringLiteral("begun")).withStatus(TaskStatus::InProgress).add();
        f.start();
        f.control<QComboBox>(f.main(), "cmbStatus")->setCurrentText(QStringLiteral("In Progress"));
        f.control<QRadioButton>(f.main(), "opnActiveTasks")->click();
        f.database.statements().take();
        f.press(f.main(), "btnTaskPrint");
        QCOMPARE(f.database.statements().take(),
            QStringList{QStringLiteral("select * from tasks inner join categories on "
                                       "tasks.cat_id=categories.cat_id where task_status = "
                                       "1 and task_due_date  >=now()")});
        QVERIFY(f.reportWindow != nullptr);
        QVERIFY(f.reportWindow->isVisible());
        QCOMPARE(f.reportWindow->content.caption, QStringLiteral("Tasks Report"));
        QVERIFY(!f.reportWindow->content.image.isNull());
        QCOMPARE(namesIn(f.reportWindow->content), QStringList{QStringLiteral("begun")});
    }

    void oneWindowServesAllRuns()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskPrint");
        const QPointer<RecordedReportWindow> first = f.reportWindow;
        aTask(f.database).named(QStringLiteral("new")).add();
        f.press(f.main(), "btnTaskPrint");
        QCOMPARE(f.reportWindow.data(), first.data());
        QCOMPARE(namesIn(first->content), QStringList{QStringLiteral("new")});
        QCOMPARE(f.database.statements().opened() - f.database.statements().closed(), 1);
    }

    void theReportAppearsTopmostWhenTheSettingIsOn()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.start();
        f.press(f.main(), "btnTaskPrint");
        QVERIFY(f.reportWindow->appearedTopmost);
    }

    void theReportIsAnOrdinaryWindowWithoutTheSetting()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskPrint");
        QVERIFY(!f.reportWindow->appearedTopmost);
        QCOMPARE(f.reportWindow->windowHandle()->transientParent(), f.main().windowHandle());
        QVERIFY(!f.reportWindow->isModal());
    }

    void aFailedQueryIsReportedAndShowsNoReport()
    {
        ProgramFixture f;
        f.start();
        f.database.sql(QStringLiteral("alter table tasks rename to elsewhere"));
        f.dialogs.expectError(QStringLiteral("no such table: tasks"));
        f.press(f.main(), "btnTaskPrint");
        QVERIFY(f.reportWindow == nullptr || !f.reportWindow->isVisible());
        QCOMPARE(f.database.statements().opened(), f.database.statements().closed());
    }

    void theReportEndsWithTheProgramAndClosesItsConnection()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskPrint");
        QVERIFY(f.database.statements().opened() > f.database.statements().closed());
        f.program.unload();
        QVERIFY(f.reportWindow == nullptr);
        QCOMPARE(f.database.statements().opened(), f.database.statements().closed());
    }
};

AMBERTASK_TEST_MAIN(PrintingTest)
#include "tst_printing.moc"

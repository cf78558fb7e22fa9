#include "store/DatabaseError.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QComboBox>
#include <QFile>
#include <QPlainTextEdit>

using namespace std::chrono_literals;

class TestTaskDetailsLoading : public TestCase
{
    Q_OBJECT

private slots:
    void everyFieldOfTheTaskIsShown();
    void loadingAsksForThatTaskAlone();
    void everyStatusIsSelected();
    void everyPriorityIsSelected();
    void anUnknownStatusAndPriorityStayAtTheirDefaults();
    void aCategoryThatIsNotListedIsNotSelected();
    void theStoredReminderMomentWinsOverTheDueMoment();
    void aReminderThatIsOffKeepsItsMomentAndItsPaths();
    void emptyPathsLeaveTheirBoxesUnchecked();
    void theTaskBeforeLeavesNothingBehind();
    void aTaskThatIsGoneLeavesTheFormAsItWas();
    void aFailureLeavesTheFormAsItWas();
    void loadingShowsNoWindow();
    void textsAreShownAsTheyAreStored();
};

void TestTaskDetailsLoading::everyFieldOfTheTaskIsShown()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database)
                          .named(QStringLiteral("Bob's call"))
                          .describedAs(QStringLiteral("one\ntwo"))
                          .in(3)
                          .withStatus(TaskStatus::Waiting)
                          .withPeriority(TaskPeriority::High)
                          .dueAt(fromStart(26h + 5min))
                          .remindingAt(fromStart(25h + 4min))
                          .sounding(QStringLiteral("a.wav"))
                          .starting(QStringLiteral("run"))
                          .add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("Bob's call"));
    QCOMPARE(dialog.text("cmbCategories"), QStringLiteral("Shopping"));
    QCOMPARE(dialog.text("txtDescription"), QStringLiteral("one\ntwo"));
    QCOMPARE(dialog.text("dtpDueDate"), QStringLiteral("1/16/2026"));
    QCOMPARE(dialog.text("dtpDueTime"), QStringLiteral("12:05"));
    QCOMPARE(dialog.text("cmbStatus"), QStringLiteral("Waiting on someone else"));
    QCOMPARE(dialog.text("cmbPeriorities"), QStringLiteral("High"));
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("1"));
    QCOMPARE(dialog.text("dtpReminderDate"), QStringLiteral("1/16/2026"));
    QCOMPARE(dialog.text("dtpReminderTime"), QStringLiteral("11:04"));
    QCOMPARE(dialog.text("chkReminderSound"), QStringLiteral("1"));
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("a.wav"));
    QCOMPARE(dialog.text("chkReminderFile"), QStringLiteral("1"));
    QCOMPARE(dialog.text("txtReminderFile"), QStringLiteral("run"));
    for (const char* name :
        {"dtpReminderDate", "dtpReminderTime", "chkReminderSound", "chkReminderFile", "btnSoundBrowse",
            "btnFileBrowse", "txtReminderFile", "txtReminderSound", "lblReminderDate", "lblReminderTime"}) {
        QVERIFY2(dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsLoading::loadingAsksForThatTaskAlone()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.services.database.statements().take(),
        QStringList(QStringLiteral("select * from tasks inner join categories on "
                                   "tasks.cat_id=categories.cat_id where task_id = %1")
                        .arg(id)));
    QCOMPARE(dialog.services.database.statements().closed(), dialog.services.database.statements().opened());
}

void TestTaskDetailsLoading::everyStatusIsSelected()
{
    TaskDialog dialog;
    for (const qint32 status : {0, 1, 2, 3, 4}) {
        const qint32 id = aTask(dialog.services.database).withStatus(status).add();
        dialog.form->SetTag(static_cast<qint16>(id));
        QCOMPARE(dialog.control<QComboBox>("cmbStatus")->currentData().toInt(), status);
    }
}

void TestTaskDetailsLoading::everyPriorityIsSelected()
{
    TaskDialog dialog;
    for (const qint32 periority : {0, 1, 2}) {
        const qint32 id = aTask(dialog.services.database).withPeriority(periority).add();
        dialog.form->SetTag(static_cast<qint16>(id));
        QCOMPARE(dialog.control<QComboBox>("cmbPeriorities")->currentData().toInt(), periority);
    }
}

void TestTaskDetailsLoading::anUnknownStatusAndPriorityStayAtTheirDefaults()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).withStatus(9).withPeriority(9).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.text("cmbStatus"), QStringLiteral("Not Started"));
    QCOMPARE(dialog.text("cmbPeriorities"), QStringLiteral("Normal"));
}

void TestTaskDetailsLoading::aCategoryThatIsNotListedIsNotSelected()
{
    TaskDialog dialog(1);
    const qint16 category = dialog.services.database.addCategory(QStringLiteral("not listed yet"));
    const qint32 id = aTask(dialog.services.database).in(category).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
}

void TestTaskDetailsLoading::theStoredReminderMomentWinsOverTheDueMoment()
{
    TaskDialog dialog;
    const qint32 id =
        aTask(dialog.services.database).dueAt(fromStart(48h)).remindingAt(fromStart(-24h - 3min)).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-14 09:57:00"));
}

void TestTaskDetailsLoading::aReminderThatIsOffKeepsItsMomentAndItsPaths()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database)
                          .dueAt(fromStart(48h))
                          .sounding(QStringLiteral("a.wav"))
                          .starting(QStringLiteral("run"))
                          .add();
    dialog.services.database.sql(QStringLiteral("update tasks set reminder_date_time='2026-01-10 08:00:00'"));
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("0"));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-10 08:00:00"));
    QCOMPARE(dialog.text("chkReminderSound"), QStringLiteral("1"));
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("a.wav"));
    QCOMPARE(dialog.text("chkReminderFile"), QStringLiteral("1"));
    QCOMPARE(dialog.text("txtReminderFile"), QStringLiteral("run"));
    for (const char* name : {"dtpReminderDate", "dtpReminderTime", "chkReminderSound", "chkReminderFile",
             "btnSoundBrowse", "btnFileBrowse", "txtReminderFile", "txtReminderSound"}) {
        QVERIFY2(!dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsLoading::emptyPathsLeaveTheirBoxesUnchecked()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).remindingAt(fromStart(1h)).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.text("chkReminderSound"), QStringLiteral("0"));
    QCOMPARE(dialog.text("chkReminderFile"), QStringLiteral("0"));
    QVERIFY(dialog.widget("chkReminderSound")->isEnabled());
    QVERIFY(!dialog.widget("txtReminderSound")->isEnabled());
    QVERIFY(!dialog.widget("btnFileBrowse")->isEnabled());
}

void TestTaskDetailsLoading::theTaskBeforeLeavesNothingBehind()
{
    TaskDialog dialog;
    const qint32 full = aTask(dialog.services.database)
                            .describedAs(QStringLiteral("about it"))
                            .withStatus(TaskStatus::Completed)
                            .remindingAt(fromStart(1h))
                            .sounding(QStringLiteral("a.wav"))
                            .starting(QStringLiteral("run"))
                            .add();
    const qint32 bare = aTask(dialog.services.database).named(QStringLiteral("bare")).add();
    dialog.form->SetTag(static_cast<qint16>(full));
    dialog.form->SetTag(static_cast<qint16>(bare));
    QCOMPARE(dialog.form->tag(), QString::number(bare));
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("bare"));
    QCOMPARE(dialog.text("txtDescription"), QString());
    QCOMPARE(dialog.text("cmbStatus"), QStringLiteral("Not Started"));
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("0"));
    QCOMPARE(dialog.text("txtReminderSound"), QString());
    QCOMPARE(dialog.text("txtReminderFile"), QString());
    QVERIFY(!dialog.control<QPlainTextEdit>("txtDescription")->document()->isUndoAvailable());
}

void TestTaskDetailsLoading::aTaskThatIsGoneLeavesTheFormAsItWas()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).named(QStringLiteral("first")).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, dialog.form->SetTag(999));
    QCOMPARE(dialog.form->tag(), QString::number(id));
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("first"));
    QVERIFY(!dialog.form->isVisible());
    try {
        dialog.form->SetTag(999);
    } catch (const RuntimeError& error) {
        QCOMPARE(error.text(), QStringLiteral("The task no longer exists."));
    }
}

void TestTaskDetailsLoading::aFailureLeavesTheFormAsItWas()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).named(QStringLiteral("first")).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QVERIFY(QFile::remove(dialog.services.database.dataFile()));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, dialog.form->SetTag(static_cast<qint16>(id)));
    QCOMPARE(dialog.form->tag(), QString::number(id));
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("first"));
}

void TestTaskDetailsLoading::loadingShowsNoWindow()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QVERIFY(!dialog.form->isVisible());
}

void TestTaskDetailsLoading::textsAreShownAsTheyAreStored()
{
    TaskDialog dialog;
    const QString text = QStringLiteral(u"<b>Bob's</b> & \u05e9\u05dc\u05d5\u05dd \U0001F600 <task_name/>");
    const qint32 id =
        aTask(dialog.services.database).named(text).describedAs(text).sounding(text).starting(text).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    for (const char* name : {"txtTask", "txtDescription", "txtReminderSound", "txtReminderFile"}) {
        QCOMPARE(dialog.text(name), text);
    }
}

AMBERTASK_TEST_MAIN(TestTaskDetailsLoading)
#include "tst_task_details_loading.moc"

#include "TaskDialog.h"
#include "support/TestMain.h"

#include <QComboBox>

using namespace std::chrono_literals;

namespace
{

/// The dialog with a stored task that something else changes while it is open.
struct OpenTask : TaskDialog {
    OpenTask()
    {
        const qint32 id = aTask(services.database).named(QStringLiteral("call")).dueAt(fromStart(24h)).add();
        form->SetTag(static_cast<qint16>(id));
        show();
    }
    void changeElsewhere(const QString& columns) const
    {
        services.database.sql(QStringLiteral("update tasks set ") + columns);
    }
};

} // namespace

/// A task that is open in the dialog while the command line, the alert or another machine changes it.
class TaskDetailsMeanwhileTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatOthersHaveChangedStaysWhereTheUserHasChangedSomethingElse_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("name") << QStringLiteral("task_name") << QVariant(QStringLiteral("call Bob"));
        QTest::newRow("description") << QStringLiteral("task_desc") << QVariant(QStringLiteral("at home"));
        QTest::newRow("category") << QStringLiteral("cat_id") << QVariant(3);
        QTest::newRow("status") << QStringLiteral("task_status") << QVariant(2);
        QTest::newRow("due") << QStringLiteral("task_due_date")
                             << QVariant(QStringLiteral("2026-03-01 10:00:00"));
        QTest::newRow("sound") << QStringLiteral("reminder_sound") << QVariant(QStringLiteral("/a.wav"));
        QTest::newRow("file") << QStringLiteral("reminder_file") << QVariant(QStringLiteral("/a.sh"));
    }

    void whatOthersHaveChangedStaysWhereTheUserHasChangedSomethingElse()
    {
        QFETCH(const QString, column);
        QFETCH(const QVariant, value);
        const OpenTask dialog;
        dialog.changeElsewhere(QStringLiteral("%1='%2'").arg(column, value.toString()));
        dialog.control<QComboBox>("cmbPeriorities")->setCurrentIndex(2);
        const int periority = dialog.control<QComboBox>("cmbPeriorities")->currentData().toInt();
        dialog.click("btnOk");
        QCOMPARE(dialog.stored(column).toString(), value.toString());
        QCOMPARE(dialog.stored(QStringLiteral("task_periority")).toInt(), periority);
    }

    void whatTheUserHasChangedIsStored()
    {
        const OpenTask dialog;
        dialog.changeElsewhere(QStringLiteral("task_name='call Bob',task_periority=0,task_status=4"));
        dialog.setText("txtTask", QStringLiteral("call Eve"));
        dialog.control<QComboBox>("cmbStatus")->setCurrentIndex(3);
        dialog.click("btnOk");
        QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("call Eve"));
        QCOMPARE(dialog.stored(QStringLiteral("task_status")).toInt(), 3);
        QCOMPARE(dialog.stored(QStringLiteral("task_periority")).toInt(), 0);
    }

    void inputThatIsLetGoOfWhileItsQuestionIsOpenIsNotStoredTwice()
    {
        OpenTask dialog;
        dialog.setText("txtTask", QStringLiteral("call Eve"));
        dialog.services.dialogs.expectUnsaved(QStringLiteral("The changes to 'call Eve' are not saved."),
            MessageBoxes::Unsaved::Save, [&dialog] { dialog.click("btnCancel"); });
        QVERIFY(dialog.form->letGo());
        QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("call"));
    }

    void aSoundThatTheUserTakesAwayIsGone()
    {
        const OpenTask dialog;
        dialog.changeElsewhere(QStringLiteral("reminder_sound='/a.wav',reminder_on=1"));
        dialog.form->SetTag(1);
        dialog.changeElsewhere(QStringLiteral("reminder_sound='/b.wav'"));
        dialog.click("chkReminderSound");
        dialog.click("btnOk");
        QCOMPARE(dialog.stored(QStringLiteral("reminder_sound")).toString(), QString());
    }
};

AMBERTASK_TEST_MAIN(TaskDetailsMeanwhileTest)
#include "tst_task_details_meanwhile.moc"

#include "data/ClsTask.h"
#include "data/HardTexts.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimeEdit>

class TestTaskDetailsTexts : public TestCase
{
    Q_OBJECT

private slots:
    void hardTextsAreStoredAsTheyAre();
    void aMegabyteOfDescriptionComesBackAsItWas();
    void aNameLongerThanAnEditsOwnLimitIsStoredWhole();
    void textsWithoutEndAreStoredAsTheyWere();
    void aHalfTypedPickerCountsAsItWouldOnLeavingIt();
};

void TestTaskDetailsTexts::hardTextsAreStoredAsTheyAre()
{
    QStringList texts = hardTexts();
    texts.append(QStringLiteral("10\u00a0\u20ac"));
    for (const QString& text : texts) {
        // Blanks around a text and the carriage returns of its lines do not come through an edit.
        QString description = text;
        description.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        description = description.trimmed();
        QString name = QStringLiteral("x%1x").arg(text);
        TaskDialog dialog;
        dialog.showValid();
        dialog.setText("txtDescription", text);
        dialog.setText("txtTask", name);
        dialog.click("btnOk");
        QCOMPARE(dialog.stored(QStringLiteral("task_desc")).toString(), description);
        QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(),
            name.replace(QLatin1String("\r\n"), QLatin1String(" ")));

        dialog.form->SetTag(1);
        QCOMPARE(dialog.text("txtDescription"), description);
    }
}

void TestTaskDetailsTexts::aMegabyteOfDescriptionComesBackAsItWas()
{
    TaskDialog dialog;
    dialog.showValid();
    QString text = longTextOfQuotes();
    for (qsizetype i = 80; i < text.size(); i += 81) {
        text[i] = u'\n';
    }
    dialog.setText("txtDescription", text);
    dialog.click("btnOk");
    QVERIFY(!dialog.form->isVisible());
    dialog.form->EmptyForm();
    dialog.form->SetTag(1);
    QVERIFY(dialog.text("txtDescription") == text);
    dialog.show();
    dialog.click("btnOk");
    QVERIFY(dialog.stored(QStringLiteral("task_desc")).toString() == text);
}

void TestTaskDetailsTexts::aNameLongerThanAnEditsOwnLimitIsStoredWhole()
{
    TaskDialog dialog;
    dialog.showValid();
    const QString text(40'000, u'n');
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.click("chkReminderFile");
    for (const char* name : {"txtTask", "txtReminderSound", "txtReminderFile"}) {
        dialog.setText(name, text);
    }
    dialog.click("btnOk");
    for (const char* column : {"task_name", "reminder_sound", "reminder_file"}) {
        QCOMPARE(dialog.stored(QLatin1String(column)).toString().size(), text.size());
    }
}

void TestTaskDetailsTexts::textsWithoutEndAreStoredAsTheyWere()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("btnOk");
    // Another program wrote it.
    const QString endless(10'000'000, u'\u0628');
    ClsTask task = ClsTask(dialog.services.services.engine).GetTaskById(1).value();
    task.setTaskName(endless);
    task.setDescription(endless);
    task.Update();
    dialog.form->SetTag(1);
    dialog.show();
    QVERIFY(dialog.control<QLineEdit>("txtTask")->text().size() < 20'000);
    QVERIFY(dialog.control<QPlainTextEdit>("txtDescription")->toPlainText().size() < 20'000);
    dialog.click("btnOk");
    QVERIFY(!dialog.form->isVisible());
    QVERIFY(dialog.stored(QStringLiteral("task_name")).toString() == endless);
    QVERIFY(dialog.stored(QStringLiteral("task_desc")).toString() == endless);
    // The next task has none of it.
    dialog.form->EmptyForm();
    QCOMPARE(dialog.text("txtTask"), QString());
}

void TestTaskDetailsTexts::aHalfTypedPickerCountsAsItWouldOnLeavingIt()
{
    TaskDialog dialog;
    dialog.showValid();
    auto* time = dialog.control<QTimeEdit>("dtpDueTime");
    time->setTime(QTime(11, 45));
    time->setFocus();
    time->setSelectedSection(QDateTimeEdit::MinuteSection);
    dialog.press(Qt::Key_3);
    QCOMPARE(dialog.text("dtpDueTime"), QStringLiteral("11:3"));
    dialog.press(Qt::Key_Return);
    QVERIFY(!dialog.form->isVisible());
    QCOMPARE(
        dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-01-15 11:03:00"));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsTexts)
#include "tst_task_details_texts.moc"

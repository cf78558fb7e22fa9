#include "support/TestMain.h"
#include "tasks/TaskDialog.h"
#include "widgets/MomentMenu.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeEdit>

class TestTaskDetailsLayout : public TestCase
{
    Q_OBJECT

private slots:
    void everyControlIsThere();
    void theReminderControlsSitInTheirFrame();
    void theTabKeyVisitsTheControlsFromTopToBottom();
    void everyMnemonicIsUnique();
    void everyFieldIsTheBuddyOfALabel();
    void everyControlHasAnAccessibleNameOfItsOwn();
    void noButtonIsTheDefault();
    void nothingIsCutOffAtTheLeastSize();
    void aLongCategoryDoesNotWidenTheDialog();
    void theListOfRepeatsShowsItsEntriesWhole();

private:
    static QWidgetList controls(const TaskDialog& dialog)
    {
        QWidgetList found;
        for (const char* name :
            {"txtTask", "cmbCategories", "txtDescription", "dtpDueDate", "dtpDueTime", "btnSetDue",
                "cmbStatus", "cmbPeriorities", "chkEnableReminder", "cmbRepeat", "dtpReminderDate",
                "dtpReminderTime", "btnSetReminder", "chkReminderSound", "txtReminderSound", "btnSoundBrowse",
                "chkReminderFile", "txtReminderFile", "btnFileBrowse", "btnOk", "btnCancel"}) {
            found.append(dialog.widget(name));
        }
        return found;
    }
    static int partsOf(const QWidget* control)
    {
        const auto* picker = qobject_cast<const QDateTimeEdit*>(control);
        return picker == nullptr ? 1 : picker->sectionCount();
    }
    static void enableAll(const TaskDialog& dialog)
    {
        dialog.showValid();
        dialog.click("chkEnableReminder");
        dialog.click("chkReminderSound");
        dialog.click("chkReminderFile");
    }
};

void TestTaskDetailsLayout::everyControlIsThere()
{
    const TaskDialog dialog;
    QVERIFY(dialog.control<QLineEdit>("txtTask"));
    QVERIFY(dialog.control<QComboBox>("cmbCategories"));
    QVERIFY(dialog.control<QPlainTextEdit>("txtDescription"));
    QVERIFY(dialog.control<QDateEdit>("dtpDueDate"));
    QVERIFY(dialog.control<QTimeEdit>("dtpDueTime"));
    QVERIFY(dialog.control<QComboBox>("cmbStatus"));
    QVERIFY(dialog.control<QComboBox>("cmbPeriorities"));
    QVERIFY(dialog.control<QCheckBox>("chkEnableReminder"));
    QVERIFY(dialog.control<QComboBox>("cmbRepeat"));
    QVERIFY(dialog.control<QLabel>("lblReminderDate"));
    QVERIFY(dialog.control<QDateEdit>("dtpReminderDate"));
    QVERIFY(dialog.control<QLabel>("lblReminderTime"));
    QVERIFY(dialog.control<QTimeEdit>("dtpReminderTime"));
    QVERIFY(dialog.control<QCheckBox>("chkReminderSound"));
    QVERIFY(dialog.control<QLineEdit>("txtReminderSound"));
    QVERIFY(dialog.control<QPushButton>("btnSoundBrowse"));
    QVERIFY(dialog.control<QCheckBox>("chkReminderFile"));
    QVERIFY(dialog.control<QLineEdit>("txtReminderFile"));
    QVERIFY(dialog.control<QPushButton>("btnFileBrowse"));
    QVERIFY(dialog.control<QPushButton>("btnOk"));
    QVERIFY(dialog.control<QPushButton>("btnCancel"));
}

void TestTaskDetailsLayout::theReminderControlsSitInTheirFrame()
{
    const TaskDialog dialog;
    const auto* frame = dialog.control<QGroupBox>("framReminderLater");
    for (const char* name : {"chkEnableReminder", "cmbRepeat", "lblReminderDate", "dtpReminderDate",
             "lblReminderTime", "dtpReminderTime", "chkReminderSound", "txtReminderSound", "btnSoundBrowse",
             "chkReminderFile", "txtReminderFile", "btnFileBrowse"}) {
        QVERIFY2(frame->isAncestorOf(dialog.widget(name)), name);
    }
}

void TestTaskDetailsLayout::theTabKeyVisitsTheControlsFromTopToBottom()
{
    const TaskDialog dialog;
    enableAll(dialog);
    dialog.widget("txtTask")->setFocus();
    for (const QWidget* control : controls(dialog)) {
        QCOMPARE(dialog.focused(), control->objectName());
        // In a picker the key goes from part to part first.
        const int parts = partsOf(control);
        for (int i = 0; i < parts; ++i) {
            dialog.press(Qt::Key_Tab);
        }
    }
    QCOMPARE(dialog.focused(), QStringLiteral("txtTask"));
}

void TestTaskDetailsLayout::everyMnemonicIsUnique()
{
    const TaskDialog dialog;
    QStringList mnemonics;
    for (const QLabel* label : dialog.form->findChildren<QLabel*>()) {
        mnemonics.append(QKeySequence::mnemonic(label->text()).toString());
    }
    for (const QAbstractButton* button : dialog.form->findChildren<QAbstractButton*>()) {
        // The two menus have keys of their own.
        if (qobject_cast<const MomentButton*>(button) == nullptr) {
            mnemonics.append(QKeySequence::mnemonic(button->text()).toString());
        }
    }
    QCOMPARE(mnemonics.size(), 19);
    QVERIFY(!mnemonics.contains(QString()));
    mnemonics.sort();
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

void TestTaskDetailsLayout::everyFieldIsTheBuddyOfALabel()
{
    const TaskDialog dialog;
    QStringList buddies;
    for (const QLabel* label : dialog.form->findChildren<QLabel*>()) {
        QVERIFY2(label->buddy() != nullptr, qPrintable(label->text()));
        buddies.append(label->buddy()->objectName());
    }
    buddies.sort();
    QStringList fields({"txtTask", "cmbCategories", "txtDescription", "dtpDueDate", "dtpDueTime", "cmbStatus",
        "cmbPeriorities", "cmbRepeat", "dtpReminderDate", "dtpReminderTime", "txtReminderSound",
        "txtReminderFile"});
    fields.sort();
    QCOMPARE(buddies, fields);
}

void TestTaskDetailsLayout::everyControlHasAnAccessibleNameOfItsOwn()
{
    const TaskDialog dialog;
    QStringList names;
    for (QWidget* control : controls(dialog)) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(accessible != nullptr, qPrintable(control->objectName()));
        const QString name = accessible->text(QAccessible::Name);
        QVERIFY2(!name.isEmpty() && !name.contains(u'&'), qPrintable(control->objectName()));
        names.append(name);
    }
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestTaskDetailsLayout::noButtonIsTheDefault()
{
    const TaskDialog dialog;
    for (const QPushButton* button : dialog.form->findChildren<QPushButton*>()) {
        QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
    }
}

void TestTaskDetailsLayout::nothingIsCutOffAtTheLeastSize()
{
    const TaskDialog dialog;
    enableAll(dialog);
    dialog.form->resize(1, 1);
    QTRY_COMPARE(dialog.form->size(), dialog.form->minimumSizeHint());
    for (const QWidget* control : controls(dialog)) {
        QVERIFY2(control->width() >= control->minimumSizeHint().width()
                && control->height() >= control->minimumSizeHint().height(),
            qPrintable(control->objectName()));
        const QRect inForm(control->mapTo(dialog.form.get(), QPoint()), control->size());
        QVERIFY2(dialog.form->rect().contains(inForm), qPrintable(control->objectName()));
    }
}

void TestTaskDetailsLayout::aLongCategoryDoesNotWidenTheDialog()
{
    TaskDialog dialog;
    dialog.show();
    const int width = dialog.form->minimumSizeHint().width();
    dialog.services.database.addCategory(QString(500, u'w'));
    dialog.form->reloadCategories();
    dialog.form->selectCategory(5);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.form->minimumSizeHint().width(), width);
}

void TestTaskDetailsLayout::theListOfRepeatsShowsItsEntriesWhole()
{
    const TaskDialog dialog;
    dialog.show();
    auto* combo = dialog.control<QComboBox>("cmbRepeat");
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QVERIFY2(combo->view()->viewport()->width() >= combo->view()->sizeHintForColumn(0),
        qPrintable(QString::number(combo->view()->viewport()->width())));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsLayout)
#include "tst_task_details_layout.moc"

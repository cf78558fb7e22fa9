#include "store/DatabaseError.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>

namespace
{

QStringList textsOf(const QComboBox& combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) {
        texts.append(combo.itemText(i));
    }
    return texts;
}

QList<int> numbersOf(const QComboBox& combo)
{
    QList<int> numbers;
    for (int i = 0; i < combo.count(); ++i) {
        numbers.append(combo.itemData(i).toInt());
    }
    return numbers;
}

} // namespace

class TestTaskDetailsForm : public TestCase
{
    Q_OBJECT

private slots:
    void itIsAModelessDialogWindow();
    void statusesAreListedWithoutAll();
    void prioritiesAreListedInTheirOrder();
    void categoriesAreListedWithoutAll();
    void noCategoryIsSelectedWhileTheFilterShowsAll();
    void theFilteredCategoryIsPreselected();
    void thePickersStartAtTheCurrentMoment();
    void theReminderStartsSwitchedOff();
    void loadingAsksForTheCategoriesOnce();
    void aFailureToLoadIsThrown();
    void emptyingResetsEveryControl();
    void emptyingAfterAnEditIsANewTask();
    void emptyingTakesTheMomentAnew();
    void aCategoryIsSelectedById();
    void allIsNoCategory();
    void reloadedCategoriesShowANewOne();
    void aReloadKeepsTheSelectedCategory();
    void aReloadDropsADeletedCategory();
    void theTagIsTheDecimalIdOfTheEditedTask();
};

void TestTaskDetailsForm::itIsAModelessDialogWindow()
{
    const TaskDialog dialog;
    QCOMPARE(dialog.form->objectName(), QStringLiteral("frmTaskDetails"));
    QCOMPARE(dialog.form->windowTitle(), QStringLiteral("Task Details"));
    QCOMPARE(dialog.form->windowType(), Qt::Dialog);
    QVERIFY(!dialog.form->isModal());
    QVERIFY(!dialog.form->isVisible());
    QCOMPARE(dialog.form->tag(), QString());
}

void TestTaskDetailsForm::statusesAreListedWithoutAll()
{
    const TaskDialog dialog;
    const auto& combo = *dialog.control<QComboBox>("cmbStatus");
    QCOMPARE(textsOf(combo),
        QStringList({"Not Started", "In Progress", "Completed", "Waiting on someone else", "Deferred"}));
    QCOMPARE(numbersOf(combo), QList<int>({0, 1, 2, 3, 4}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestTaskDetailsForm::prioritiesAreListedInTheirOrder()
{
    const TaskDialog dialog;
    const auto& combo = *dialog.control<QComboBox>("cmbPeriorities");
    QCOMPARE(textsOf(combo), QStringList({"Normal", "Low", "High"}));
    QCOMPARE(numbersOf(combo), QList<int>({1, 2, 0}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestTaskDetailsForm::categoriesAreListedWithoutAll()
{
    const TaskDialog dialog;
    const auto& combo = *dialog.control<QComboBox>("cmbCategories");
    QCOMPARE(textsOf(combo), QStringList({"Personal", "Work", "Shopping", "Appointments"}));
    QCOMPARE(numbersOf(combo), QList<int>({1, 2, 3, 4}));
}

void TestTaskDetailsForm::noCategoryIsSelectedWhileTheFilterShowsAll()
{
    const TaskDialog dialog(0);
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
}

void TestTaskDetailsForm::theFilteredCategoryIsPreselected()
{
    const TaskDialog first(1);
    QCOMPARE(first.text("cmbCategories"), QStringLiteral("Personal"));
    const TaskDialog last(4);
    QCOMPARE(last.text("cmbCategories"), QStringLiteral("Appointments"));
}

void TestTaskDetailsForm::thePickersStartAtTheCurrentMoment()
{
    const TaskDialog dialog;
    QCOMPARE(dialog.moment("dtpDueDate", "dtpDueTime"), QStringLiteral("2026-01-15 10:00:00"));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 10:00:00"));
}

void TestTaskDetailsForm::theReminderStartsSwitchedOff()
{
    const TaskDialog dialog;
    QVERIFY(!dialog.control<QCheckBox>("chkEnableReminder")->isChecked());
    QVERIFY(dialog.widget("chkEnableReminder")->isEnabled());
    for (const char* name :
        {"dtpReminderDate", "dtpReminderTime", "chkReminderSound", "chkReminderFile", "btnSoundBrowse",
            "btnFileBrowse", "txtReminderFile", "txtReminderSound", "lblReminderDate", "lblReminderTime"}) {
        QVERIFY2(!dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsForm::loadingAsksForTheCategoriesOnce()
{
    TestServices services;
    const TestHost host;
    const frmTaskDetails form(services.services, host);
    const QStringList statements = services.database.statements().take();
    QCOMPARE(statements.size(), 1);
    QVERIFY(statements.first().contains(QLatin1String("categories")));
    QCOMPARE(services.database.statements().closed(), services.database.statements().opened());
}

void TestTaskDetailsForm::aFailureToLoadIsThrown()
{
    TestServices services;
    const TestHost host;
    QVERIFY(QFile::remove(services.database.dataFile()));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, frmTaskDetails(services.services, host));
}

void TestTaskDetailsForm::emptyingResetsEveryControl()
{
    TaskDialog dialog(2);
    dialog.showValid();
    dialog.setText("txtDescription", QStringLiteral("about it"));
    dialog.control<QComboBox>("cmbStatus")->setCurrentIndex(3);
    dialog.control<QComboBox>("cmbPeriorities")->setCurrentIndex(2);
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.click("chkReminderFile");
    dialog.setText("txtReminderSound", QStringLiteral("a.wav"));
    dialog.setText("txtReminderFile", QStringLiteral("run"));

    dialog.form->EmptyForm();
    QCOMPARE(dialog.text("txtTask"), QString());
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
    QCOMPARE(dialog.text("txtDescription"), QString());
    QCOMPARE(dialog.moment("dtpDueDate", "dtpDueTime"), QStringLiteral("2026-01-15 10:00:00"));
    QCOMPARE(dialog.control<QComboBox>("cmbStatus")->currentIndex(), 0);
    QCOMPARE(dialog.control<QComboBox>("cmbPeriorities")->currentIndex(), 0);
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("0"));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 10:00:00"));
    QCOMPARE(dialog.text("chkReminderFile"), QStringLiteral("0"));
    QCOMPARE(dialog.text("txtReminderFile"), QString());
    QCOMPARE(dialog.text("chkReminderSound"), QStringLiteral("0"));
    QCOMPARE(dialog.text("txtReminderSound"), QString());
    for (const char* name : {"dtpReminderDate", "dtpReminderTime", "chkReminderSound", "chkReminderFile",
             "btnSoundBrowse", "btnFileBrowse", "txtReminderFile", "txtReminderSound"}) {
        QVERIFY2(!dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsForm::emptyingAfterAnEditIsANewTask()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).remindingAt(fromStart(std::chrono::hours(-1))).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.form->EmptyForm();
    QCOMPARE(dialog.form->tag(), QString());
    dialog.showValid();
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 2);
}

void TestTaskDetailsForm::emptyingTakesTheMomentAnew()
{
    TaskDialog dialog;
    dialog.services.database.clock().step(std::chrono::hours(25) + std::chrono::seconds(59));
    dialog.form->EmptyForm();
    QCOMPARE(dialog.moment("dtpDueDate", "dtpDueTime"), QStringLiteral("2026-01-16 11:00:00"));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-16 11:00:00"));
}

void TestTaskDetailsForm::aCategoryIsSelectedById()
{
    const TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.form->selectCategory(3);
    QCOMPARE(dialog.text("cmbCategories"), QStringLiteral("Shopping"));
}

void TestTaskDetailsForm::allIsNoCategory()
{
    const TaskDialog dialog(1);
    dialog.form->selectCategory(CategoryFilter::All);
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
}

void TestTaskDetailsForm::reloadedCategoriesShowANewOne()
{
    const TaskDialog dialog;
    dialog.services.database.addCategory(QStringLiteral("Garden"));
    dialog.form->reloadCategories();
    const auto& combo = *dialog.control<QComboBox>("cmbCategories");
    QCOMPARE(textsOf(combo), QStringList({"Personal", "Work", "Shopping", "Appointments", "Garden"}));
    QCOMPARE(combo.currentIndex(), -1);
}

void TestTaskDetailsForm::aReloadKeepsTheSelectedCategory()
{
    const TaskDialog dialog(2);
    dialog.services.database.sql(QStringLiteral("delete from categories where cat_id = 1"));
    dialog.form->reloadCategories();
    QCOMPARE(dialog.text("cmbCategories"), QStringLiteral("Work"));
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), 0);
}

void TestTaskDetailsForm::aReloadDropsADeletedCategory()
{
    TaskDialog dialog(2);
    dialog.form->selectCategory(2);
    dialog.services.database.sql(QStringLiteral("delete from categories where cat_id = 2"));
    dialog.form->reloadCategories();
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
}

void TestTaskDetailsForm::theTagIsTheDecimalIdOfTheEditedTask()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    QCOMPARE(dialog.form->tag(), QString::number(id));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsForm)
#include "tst_task_details_form.moc"

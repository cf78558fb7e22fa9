#include "data/KeptCopies.h"
#include "settings/MaintenancePageUnderTest.h"
#include "support/FileContent.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QTimer>

using namespace std::chrono;

namespace
{

const QString Nothing = QStringLiteral("There is no tasks according to the selected criteria!");

Moment at(year_month_day day, minutes timeOfDay)
{
    return makeMoment(day, timeOfDay);
}

constexpr year_month_day Today = 2026y / January / 15;

/// Six tasks around now, 15 January 2026, 10:00.
void addTasks(TestDatabase& database)
{
    aTask(database).named(QStringLiteral("yesterday")).dueAt(at(2026y / January / 14, 23h + 59min)).add();
    aTask(database).named(QStringLiteral("midnight")).dueAt(at(Today, 0min)).add();
    aTask(database).named(QStringLiteral("past")).dueAt(at(Today, 9h + 59min)).add();
    aTask(database).named(QStringLiteral("now")).dueAt(at(Today, 10h)).add();
    aTask(database).named(QStringLiteral("tonight")).dueAt(at(Today, 23h + 59min)).add();
    aTask(database).named(QStringLiteral("tomorrow")).dueAt(at(2026y / January / 16, 0min)).add();
}

} // namespace

class TestMaintenancePage : public TestCase
{
    Q_OBJECT

private slots:
    void everyControlHasItsNameAndCaption_data();
    void everyControlHasItsNameAndCaption();
    void listsAndPickersAreNamedByTheirLabels();
    void noTwoControlsShareAMnemonic();
    void theTabKeyWalksThePage();
    void theFiltersStartWithEverythingDueToday();
    void theHelpButtonWaitsForAHelp();

    void criteriaThatMatchNothingAskNothing();
    void deletingCountsAsksDeletesAndTells();
    void theRangeIncludesTodayToItsLastMinute();
    void activeTasksAreThoseDueNowOrLater();
    void expiredTasksAreThoseDueBeforeNow();
    void categoryAndStatusNarrowTheChoice();
    void anythingButYesDeletesNothing();
    void theCriteriaAreReadAgainAfterTheQuestion();
    void aRangeThatEndsBeforeItBeginsMatchesNothing();
    void aHalfTypedDateCountsAsItIsShown();
    void anUntouchedRangeFollowsTheDay();
    void aRangeOfTheUsersStays();
    void aDatabaseErrorIsReportedAndLeavesTheCheckerAlone();
    void aDeletionThatTheEndOfTheProgramOvertakesDeletesNothing();
    void aDeletionKeepsACopyOfWhatWas();
    void aDeletionWithoutACopyIsDoneAndSaysSo();
    void aRefusedDeletionKeepsNoCopy();
};

void TestMaintenancePage::everyControlHasItsNameAndCaption_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("opnAllTasksMaintenance") << QStringLiteral("All tasks");
    QTest::newRow("opnActiveTasksMaintenance") << QStringLiteral("Active tasks only");
    QTest::newRow("opnExpiredTasksMaintenance") << QStringLiteral("Expired tasks only");
    QTest::newRow("btnDeleteTasksMaintenance") << QStringLiteral("Delete");
    QTest::newRow("btnBackup") << QStringLiteral("Backup");
    QTest::newRow("btnRestore") << QStringLiteral("Restore");
    QTest::newRow("btnCopies") << QStringLiteral("Restore from a copy...");
    QTest::newRow("btnExport") << QStringLiteral("Export...");
    QTest::newRow("btnImport") << QStringLiteral("Import...");
    QTest::newRow("btnHelpMaintenance") << QStringLiteral("Help");
}

void TestMaintenancePage::everyControlHasItsNameAndCaption()
{
    QFETCH(const QString, caption);
    MaintenancePageUnderTest test;
    auto* control = test.find<QWidget>(QTest::currentDataTag());
    QVERIFY(control != nullptr);
    QCOMPARE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name), caption);
}

void TestMaintenancePage::listsAndPickersAreNamedByTheirLabels()
{
    MaintenancePageUnderTest test;
    QStringList labels;
    for (const QLabel* label : test.page.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            labels.append(label->text().remove(u'&') + u' ' + label->buddy()->objectName());
        }
    }
    labels.sort();
    QCOMPARE(labels,
        QStringList({QStringLiteral("Category cmbCategoriesMaintenance"),
            QStringLiteral("From dtpDateFromMaintenance"), QStringLiteral("Status cmbStatusMaintenance"),
            QStringLiteral("To dtpDateToMaintenance")}));
    QStringList frames;
    for (const QGroupBox* frame : test.page.findChildren<QGroupBox*>()) {
        frames.append(frame->title());
    }
    frames.sort();
    QCOMPARE(frames.join(u','),
        QStringLiteral("Backup and Restore,Date Range,Delete Tasks,Exchange with other programs"));
}

void TestMaintenancePage::noTwoControlsShareAMnemonic()
{
    MaintenancePageUnderTest test;
    QStringList mnemonics;
    for (const QWidget* control : test.page.findChildren<QWidget*>()) {
        const QString text = control->property("text").toString();
        if (const qsizetype mark = text.indexOf(u'&'); mark >= 0) {
            mnemonics.append(text.mid(mark + 1, 1).toLower());
        }
    }
    QCOMPARE(mnemonics.size(), 14);
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

void TestMaintenancePage::theTabKeyWalksThePage()
{
    MaintenancePageUnderTest test;
    test.page.setHelpEnabled(true);
    test.page.show();
    QVERIFY(QTest::qWaitForWindowActive(&test.page));
    test.page.cmbCategoriesMaintenance().setFocus();
    QStringList walked;
    // In a picker the key goes from month to day to year first.
    while (walked.isEmpty() || walked.last() != QLatin1String("btnHelpMaintenance")) {
        QVERIFY(walked.size() < 20);
        walked.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    walked.removeDuplicates();
    QCOMPARE(walked.join(u' '),
        QStringLiteral("cmbCategoriesMaintenance cmbStatusMaintenance opnAllTasksMaintenance "
                       "dtpDateFromMaintenance dtpDateToMaintenance btnDeleteTasksMaintenance btnBackup "
                       "btnRestore btnCopies btnExport btnImport btnHelpMaintenance"));
}

void TestMaintenancePage::theFiltersStartWithEverythingDueToday()
{
    MaintenancePageUnderTest test;
    QCOMPARE(test.find<QComboBox>("cmbCategoriesMaintenance")->currentText(), QStringLiteral("All"));
    QCOMPARE(test.find<QComboBox>("cmbCategoriesMaintenance")->count(), 5);
    QCOMPARE(test.find<QComboBox>("cmbStatusMaintenance")->currentText(), QStringLiteral("All"));
    QCOMPARE(test.find<QDateEdit>("dtpDateFromMaintenance")->text(), QStringLiteral("1/15/2026"));
    QCOMPARE(test.find<QDateEdit>("dtpDateToMaintenance")->text(), QStringLiteral("1/15/2026"));
    QVERIFY(test.find<QRadioButton>("opnAllTasksMaintenance")->isChecked());
}

void TestMaintenancePage::theHelpButtonWaitsForAHelp()
{
    MaintenancePageUnderTest test;
    const QSignalSpy requested(&test.page, &MaintenancePage::helpRequested);
    test.press("btnHelpMaintenance");
    QCOMPARE(requested.size(), 0);
    test.page.setHelpEnabled(true);
    test.press("btnHelpMaintenance");
    QCOMPARE(requested.size(), 1);
}

void TestMaintenancePage::criteriaThatMatchNothingAskNothing()
{
    MaintenancePageUnderTest test;
    aTask(test.database).dueAt(at(2026y / January / 16, 10h)).add();
    test.dialogs.expectTell(MessageBoxes::Icon::Exclamation, Nothing);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.database.statements().take().size(), 1);
    QCOMPARE(test.tasks().size(), 1);
    QCOMPARE(test.deleted.size(), 0);
}

void TestMaintenancePage::deletingCountsAsksDeletesAndTells()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.setRange(QDate(2026, 1, 1), QDate(2026, 1, 31));
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 6 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.database.statements().take(),
        QStringList(
            {QStringLiteral("select count(*) as tasks_count from tasks  where task_due_date >= #1/1/2026# "
                            "and task_due_date <= #1/31/2026 23:59# "),
                QStringLiteral("delete from tasks  where task_due_date >= #1/1/2026# and task_due_date <= "
                               "#1/31/2026 23:59# ")}));
    QCOMPARE(test.tasks(), QStringList());
    QCOMPARE(test.deleted.size(), 1);
    QVERIFY(test.checkerTimer.switches.isEmpty());
}

void TestMaintenancePage::theRangeIncludesTodayToItsLastMinute()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 4 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().join(u','), QStringLiteral("yesterday,tomorrow"));
}

void TestMaintenancePage::activeTasksAreThoseDueNowOrLater()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.choose("opnActiveTasksMaintenance");
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 2 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().join(u','), QStringLiteral("yesterday,midnight,past,tomorrow"));
}

void TestMaintenancePage::expiredTasksAreThoseDueBeforeNow()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.choose("opnExpiredTasksMaintenance");
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 2 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().join(u','), QStringLiteral("yesterday,now,tonight,tomorrow"));
}

void TestMaintenancePage::categoryAndStatusNarrowTheChoice()
{
    MaintenancePageUnderTest test;
    const qint16 garden = test.database.addCategory(QStringLiteral("Garden"));
    test.page.prepareFilters();
    test.database.statements().take();
    aTask(test.database).named(QStringLiteral("elsewhere")).withStatus(2).add();
    aTask(test.database).named(QStringLiteral("open")).in(garden).withStatus(0).add();
    aTask(test.database).named(QStringLiteral("done")).in(garden).withStatus(2).add();
    test.find<QComboBox>("cmbCategoriesMaintenance")->setCurrentText(QStringLiteral("Garden"));
    test.find<QComboBox>("cmbStatusMaintenance")->setCurrentText(QStringLiteral("Completed"));
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 1 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().join(u','), QStringLiteral("elsewhere,open"));
    QCOMPARE(test.said(), QStringLiteral("1 task was deleted"));
    QCOMPARE(test.database.statements().take().first(),
        QStringLiteral("select count(*) as tasks_count from tasks  where cat_id= %1 and task_status = 2 and "
                       "task_due_date >= #1/15/2026# and task_due_date <= #1/15/2026 23:59# ")
            .arg(garden));
}

void TestMaintenancePage::anythingButYesDeletesNothing()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 4 tasks?"), false);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().size(), 6);
    QCOMPARE(test.deleted.size(), 0);
    QCOMPARE(test.said(), QString());
}

/// Changes the criteria while the question is open.
class MeddlingBoxes final : public MessageBoxes
{
public:
    explicit MeddlingBoxes(std::function<void()> meddle) : m_meddle(std::move(meddle)) { }
    void tell(QWidget*, Icon, const QString& text) override { QFAIL(qPrintable(text)); }
    bool ask(QWidget*, const QString&) override
    {
        m_meddle();
        return true;
    }
    Unsaved askAboutUnsaved(QWidget*, const QString&) override { return Unsaved::Keep; }
    Times askWhichTimes(QWidget*, const QString&) override { return Times::None; }

private:
    std::function<void()> m_meddle;
};

void TestMaintenancePage::theCriteriaAreReadAgainAfterTheQuestion()
{
    TestServices own;
    MaintenancePage* shown = nullptr;
    MeddlingBoxes boxes([&] {
        shown->findChild<QRadioButton*>(QStringLiteral("opnExpiredTasksMaintenance"))->setChecked(true);
    });
    const FormServices services{own.services.engine, own.services.clock, boxes, own.services.fileDialogs,
        own.services.errors, own.services.shell, own.services.checkerTimer, own.services.imgLstCategories,
        own.services.alwaysOnTop, own.services.files, own.undo};
    MaintenancePage page(services);
    shown = &page;
    page.prepareFilters();
    addTasks(own.database);
    QTest::mouseClick(
        page.findChild<QPushButton*>(QStringLiteral("btnDeleteTasksMaintenance")), Qt::LeftButton);
    QCOMPARE(own.database.sql(QStringLiteral("select group_concat(task_name) from tasks")).toString(),
        QStringLiteral("yesterday,now,tonight,tomorrow"));
    // What was deleted, not what was counted before.
    QCOMPARE(page.findChild<QuietLine*>(QStringLiteral("lblMaintenanceNote"))->said(),
        QStringLiteral("2 tasks were deleted"));
}

void TestMaintenancePage::aRangeThatEndsBeforeItBeginsMatchesNothing()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.setRange(QDate(2026, 1, 16), QDate(2026, 1, 14));
    test.dialogs.expectTell(MessageBoxes::Icon::Exclamation, Nothing);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().size(), 6);
}

void TestMaintenancePage::aHalfTypedDateCountsAsItIsShown()
{
    MaintenancePageUnderTest test;
    aTask(test.database).named(QStringLiteral("second")).dueAt(at(2026y / January / 2, 10h)).add();
    aTask(test.database).named(QStringLiteral("tenth")).dueAt(at(2026y / January / 10, 10h)).add();
    test.setRange(QDate(2026, 1, 1), QDate(2026, 1, 15));
    auto* to = test.find<QDateEdit>("dtpDateToMaintenance");
    to->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    test.page.show();
    QVERIFY(QTest::qWaitForWindowActive(&test.page));
    to->setFocus();
    to->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(to, Qt::Key_2);
    QCOMPARE(to->date(), QDate(2026, 1, 15));
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 1 tasks?"), true);
    // A mnemonic moves no focus.
    test.find<QPushButton>("btnDeleteTasksMaintenance")->animateClick();
    QTRY_COMPARE(test.tasks().join(u','), QStringLiteral("tenth"));
    QCOMPARE(to->date(), QDate(2026, 1, 2));
}

void TestMaintenancePage::anUntouchedRangeFollowsTheDay()
{
    MaintenancePageUnderTest test;
    test.page.show();
    test.page.hide();
    test.database.clock().step(days(3));
    test.page.show();
    QCOMPARE(test.find<QDateEdit>("dtpDateFromMaintenance")->date(), QDate(2026, 1, 18));
    QCOMPARE(test.find<QDateEdit>("dtpDateToMaintenance")->date(), QDate(2026, 1, 18));
}

void TestMaintenancePage::aRangeOfTheUsersStays()
{
    MaintenancePageUnderTest test;
    test.setRange(QDate(2026, 1, 1), QDate(2026, 1, 15));
    test.database.clock().step(days(3));
    test.page.show();
    QCOMPARE(test.find<QDateEdit>("dtpDateFromMaintenance")->date(), QDate(2026, 1, 1));
    QCOMPARE(test.find<QDateEdit>("dtpDateToMaintenance")->date(), QDate(2026, 1, 15));
}

void TestMaintenancePage::aDatabaseErrorIsReportedAndLeavesTheCheckerAlone()
{
    MaintenancePageUnderTest test;
    QVERIFY(QFile::remove(test.database.dataFile()));
    test.dialogs.expectError(QStringLiteral("does not exist"));
    test.press("btnDeleteTasksMaintenance");
    QVERIFY(test.checkerTimer.switches.isEmpty());
    QCOMPARE(test.deleted.size(), 0);
}

/// Ends the program at the moment when the deletion is about to begin.
class EndAtDeletion final : public StatementListener
{
public:
    void connectionOpened(const QString&) override { }
    void statementExecuted(QStringView statement) override
    {
        if (statement.startsWith(QLatin1String("delete"))) {
            QCoreApplication::exit(0);
        }
    }
    void connectionClosed() override { }
};

void TestMaintenancePage::aDeletionThatTheEndOfTheProgramOvertakesDeletesNothing()
{
    constexpr int Many = 4000; // so that SQLite calls the progress handler
    TestServices own;
    EndAtDeletion ending;
    DatabaseEngine engine = own.database.engine();
    engine.listener = &ending;
    UndoHistory undo(engine);
    const FormServices services{engine, own.services.clock, own.services.messages, own.services.fileDialogs,
        own.services.errors, own.services.shell, own.services.checkerTimer, own.services.imgLstCategories,
        own.services.alwaysOnTop, own.services.files, undo};
    MaintenancePage page(services);
    page.prepareFilters();
    own.database.sql(QStringLiteral(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
        "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
        "reminder_on,reminder_date_time) select 'Task '||i,'',0,1,'2026-01-15 11:00:00',1,0,"
        "'2099-01-01 00:00:00' from n")
                         .arg(Many));
    own.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete %1 tasks?").arg(Many), true);
    const QSignalSpy deleted(&page, &MaintenancePage::tasksDeleted);
    QTimer::singleShot(0, &page, [&page] {
        QTest::mouseClick(
            page.findChild<QPushButton*>(QStringLiteral("btnDeleteTasksMaintenance")), Qt::LeftButton);
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(own.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), Many);
    QCOMPARE(deleted.size(), 0);
}

void TestMaintenancePage::aDeletionKeepsACopyOfWhatWas()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    const QByteArray before = contentOf(test.database.dataFile());
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 4 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().size(), 2);
    const QList<KeptCopy> copies = KeptCopies(test.database.engine()).list();
    QCOMPARE(copies.size(), 1);
    QCOMPARE(copies.first().occasion, CopyOccasion::Deletion);
    QVERIFY(contentOf(copies.first().path) == before);
    QCOMPARE(test.said(), QStringLiteral("4 tasks were deleted"));
}

void TestMaintenancePage::aDeletionWithoutACopyIsDoneAndSaysSo()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    writeText(test.pathOf(QStringLiteral("copies")), "not a folder");
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 4 tasks?"), true);
    test.press("btnDeleteTasksMaintenance");
    QCOMPARE(test.tasks().size(), 2);
    QCOMPARE(test.said(), QStringLiteral("4 tasks were deleted. No copy was kept: it is not a folder"));
}

void TestMaintenancePage::aRefusedDeletionKeepsNoCopy()
{
    MaintenancePageUnderTest test;
    addTasks(test.database);
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 4 tasks?"), false);
    test.press("btnDeleteTasksMaintenance");
    QVERIFY(KeptCopies(test.database.engine()).list().isEmpty());
}

AMBERTASK_TEST_MAIN(TestMaintenancePage)
#include "tst_maintenance_page.moc"

#include "settings/SettingsPageUnderTest.h"
#include "support/TestMain.h"
#include "system/ProgramFolder.h"
#include "widgets/LinkLabel.h"

#include <QAccessible>
#include <QGroupBox>
#include <QSignalSpy>

class TestSettingsPage : public TestCase
{
    Q_OBJECT

private slots:
    void everyControlHasItsNameAndCaption_data();
    void everyControlHasItsNameAndCaption();
    void theFramesHoldTheirControls();
    void noTwoControlsShareAMnemonic();
    void theTabKeyWalksThePageFromTopToBottom();

    void fillingCopiesTheRecordIntoTheControls();
    void minimizeOnStartSaysWhatTheTrayMenuOffers();
    void editsAreDiscardedWhenThePageIsFilledAgain();
    void changingABoxAppliesNothing();
    void aSkinWithoutAnEntryLeavesTheSelection();
    void theSkinIsComparedByLetterCase();
    void theLastOfTwoEntriesOfThatNameIsSelected();

    void savingEverythingOffExecutesExactlyTwoStatements();
    void savingUpdatesTheRecordBeforeTheWindowIsTouched();
    void savingAsksTheMainWindowInOrder();
    void checkingStartWithWindowsWritesTheRunEntry();
    void uncheckingStartWithWindowsDeletesTheRunEntry();
    void aFailedInsertIsReportedAndTouchesNothingElse();

    void theHelpButtonWaitsForAHelp();
    void theBoxesCanBeAskedBeforeTheyAreSaved();
};

void TestSettingsPage::everyControlHasItsNameAndCaption_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("chkShowGrid") << QStringLiteral("Show grid");
    QTest::newRow("chkShowTodayTasksOnStart") << QStringLiteral("Show today's tasks on start");
    QTest::newRow("chkStartWithWin") << QStringLiteral("Start with windows");
    QTest::newRow("chkOnTop") << QStringLiteral("Always on top");
    QTest::newRow("chkMinimizeOnStart") << QStringLiteral("Minimize on start");
    QTest::newRow("chkShowBallon") << QStringLiteral("Show tray balloon when closed");
    QTest::newRow("chkShowPeriority") << QStringLiteral("Task priority");
    QTest::newRow("chkShowDueDate") << QStringLiteral("Task due date");
    QTest::newRow("chkShowReminder") << QStringLiteral("Task reminder");
    QTest::newRow("chkShowStatus") << QStringLiteral("Task status");
    QTest::newRow("btnBrowseNewSkin") << QStringLiteral("Browse");
    QTest::newRow("lblDownloadSkins") << QStringLiteral("Download More Skins");
    QTest::newRow("btnSave") << QStringLiteral("Save Settings");
    QTest::newRow("btnHelpSettings") << QStringLiteral("Help");
}

void TestSettingsPage::everyControlHasItsNameAndCaption()
{
    QFETCH(const QString, caption);
    SettingsPageUnderTest test;
    auto* control = test.page.findChild<QWidget*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(control != nullptr);
    QCOMPARE(control->property("text").toString().remove(u'&'), caption);
    QCOMPARE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name), caption);
}

void TestSettingsPage::theFramesHoldTheirControls()
{
    SettingsPageUnderTest test;
    QMap<QString, int> boxes;
    for (const QGroupBox* frame : test.page.findChildren<QGroupBox*>()) {
        boxes.insert(frame->title(), static_cast<int>(frame->findChildren<QCheckBox*>().size()));
    }
    QCOMPARE(boxes,
        (QMap<QString, int>{{QStringLiteral("General"), 6}, {QStringLiteral("Show Columns"), 4},
            {QStringLiteral("Skins"), 0}}));
    QStringList labels;
    for (const QLabel* label : test.page.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            labels.append(label->text().remove(u'&') + u' ' + label->buddy()->objectName());
        }
    }
    QCOMPARE(labels,
        QStringList(
            {QStringLiteral("Current skin cmbSkins"), QStringLiteral("Add new skin btnBrowseNewSkin")}));
}

void TestSettingsPage::noTwoControlsShareAMnemonic()
{
    SettingsPageUnderTest test;
    QStringList mnemonics;
    for (const QWidget* control : test.page.findChildren<QWidget*>()) {
        const QString text = control->property("text").toString();
        const qsizetype at = text.indexOf(u'&');
        if (at >= 0) {
            mnemonics.append(text.mid(at + 1, 1).toLower());
        }
    }
    QCOMPARE(mnemonics.size(), 14);
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

void TestSettingsPage::theTabKeyWalksThePageFromTopToBottom()
{
    SettingsPageUnderTest test;
    test.page.setHelpEnabled(true);
    test.page.show();
    QVERIFY(QTest::qWaitForWindowActive(&test.page));
    test.box("chkShowGrid")->setFocus();
    QStringList walked;
    for (int i = 0; i < 15; ++i) {
        walked.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked.join(u' '),
        QStringLiteral("chkShowGrid chkShowTodayTasksOnStart chkStartWithWin chkOnTop chkMinimizeOnStart "
                       "chkShowBallon chkShowPeriority chkShowDueDate chkShowReminder chkShowStatus cmbSkins "
                       "btnBrowseNewSkin lblDownloadSkins btnSave btnHelpSettings"));
}

void TestSettingsPage::fillingCopiesTheRecordIntoTheControls()
{
    SettingsPageUnderTest test;
    test.setAll(false);
    test.record = {true, true, true, QStringLiteral("Lemon"), true, true, true, true, true, true, true};
    test.page.LoadSettingsPage();
    for (const QCheckBox* box : test.boxes()) {
        QVERIFY2(box->isChecked(), qPrintable(box->objectName()));
    }
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Lemon"));

    test.record = {};
    test.record.show_task_reminder = true;
    test.page.LoadSettingsPage();
    for (const QCheckBox* box : test.boxes()) {
        QCOMPARE(box->isChecked(), box->objectName() == QLatin1String("chkShowReminder"));
    }
}

void TestSettingsPage::minimizeOnStartSaysWhatTheTrayMenuOffers()
{
    SettingsPageUnderTest test;
    test.record.minimize_on_start = true;
    test.page.LoadSettingsPage();
    QCOMPARE(test.host.trayCaption, QStringLiteral("Show"));
    QVERIFY(test.box("chkMinimizeOnStart")->isChecked());
    test.record.minimize_on_start = false;
    test.page.LoadSettingsPage();
    QCOMPARE(test.host.trayCaption, QStringLiteral("Hide"));
    QVERIFY(!test.box("chkMinimizeOnStart")->isChecked());
}

void TestSettingsPage::editsAreDiscardedWhenThePageIsFilledAgain()
{
    SettingsPageUnderTest test;
    test.box("chkShowGrid")->click();
    test.choose(QStringLiteral("Classic"));
    QVERIFY(!test.box("chkShowGrid")->isChecked());
    test.page.LoadSettingsPage();
    QVERIFY(test.box("chkShowGrid")->isChecked());
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Aqua"));
}

void TestSettingsPage::changingABoxAppliesNothing()
{
    SettingsPageUnderTest test;
    const SettingsRecord before = test.record;
    for (QCheckBox* box : test.boxes()) {
        box->click();
    }
    test.choose(QStringLiteral("Lemon"));
    QVERIFY(test.record == before);
    QVERIFY(test.host.calls.isEmpty());
    QVERIFY(test.registry.isEmpty());
    QVERIFY(test.database.statements().take().isEmpty());
}

void TestSettingsPage::aSkinWithoutAnEntryLeavesTheSelection()
{
    SettingsPageUnderTest test;
    test.cmbSkins()->setCurrentText(QStringLiteral("Classic"));
    test.record.skin = QStringLiteral("Gone");
    test.page.LoadSettingsPage();
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Classic"));
}

void TestSettingsPage::theSkinIsComparedByLetterCase()
{
    SettingsPageUnderTest test;
    test.cmbSkins()->setCurrentText(QStringLiteral("Classic"));
    test.record.skin = QStringLiteral("aqua");
    test.page.LoadSettingsPage();
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Classic"));
}

void TestSettingsPage::theLastOfTwoEntriesOfThatNameIsSelected()
{
    SettingsPageUnderTest test;
    test.cmbSkins()->addItem(QStringLiteral("Aqua"));
    test.page.LoadSettingsPage();
    QCOMPARE(test.cmbSkins()->currentIndex(), test.cmbSkins()->count() - 1);
}

void TestSettingsPage::savingEverythingOffExecutesExactlyTwoStatements()
{
    SettingsPageUnderTest test;
    test.setAll(false);
    test.choose(QStringLiteral("Classic"));
    test.press("btnSave");
    const QStringList statements = test.database.statements().take();
    QCOMPARE(statements.size(), 2);
    QCOMPARE(statements[0], QStringLiteral("delete from settings"));
    QVERIFY2(statements[1].endsWith(QStringLiteral(" values(0,0,0,'Classic',0,0,0,0,0,0,0)")),
        qPrintable(statements[1]));
    QCOMPARE(test.database.rows(QStringLiteral("select * from settings")),
        QList<QVariantList>({{0, 0, 0, QStringLiteral("Classic"), 0, 0, 0, 0, 0, 0, 0}}));
}

void TestSettingsPage::savingUpdatesTheRecordBeforeTheWindowIsTouched()
{
    SettingsPageUnderTest test;
    test.setAll(true);
    test.choose(QStringLiteral("Lemon"));
    test.press("btnSave");
    const SettingsRecord expected{
        true, true, true, QStringLiteral("Lemon"), true, true, true, true, true, true, true};
    QVERIFY(test.record == expected);
    QVERIFY(test.host.recordAtLoadTasks == expected);
}

void TestSettingsPage::savingAsksTheMainWindowInOrder()
{
    SettingsPageUnderTest test;
    test.setAll(true);
    test.press("btnSave");
    QCOMPARE(test.host.calls.join(u','), QStringLiteral("topmost,grid lines,LoadTasks"));
    test.host.calls.clear();
    test.setAll(false);
    test.press("btnSave");
    QCOMPARE(test.host.calls.join(u','), QStringLiteral("not topmost,no grid lines,LoadTasks"));
}

void TestSettingsPage::checkingStartWithWindowsWritesTheRunEntry()
{
    SettingsPageUnderTest test;
    test.box("chkStartWithWin")->setChecked(true);
    test.press("btnSave");
    QCOMPARE(test.runEntry(), executableIn(test.database.folder()).toLocal8Bit());
    QCOMPARE(test.registry.runEntry("Ambertask").type, RegistryValues::Text);
}

void TestSettingsPage::uncheckingStartWithWindowsDeletesTheRunEntry()
{
    SettingsPageUnderTest test;
    test.press("btnSave");
    QVERIFY(!test.registry.isEmpty());
    test.box("chkStartWithWin")->setChecked(false);
    test.press("btnSave");
    QVERIFY(test.registry.isEmpty());
    test.press("btnSave");
    QVERIFY(test.registry.isEmpty());
}

void TestSettingsPage::aFailedInsertIsReportedAndTouchesNothingElse()
{
    SettingsPageUnderTest test;
    const SettingsRecord before = test.record;
    test.setAll(true);
    test.cmbSkins()->addItem(QStringLiteral("Bob's"));
    test.choose(QStringLiteral("Bob's"));
    test.dialogs.expectError(QStringLiteral("statement"));
    test.press("btnSave");
    QVERIFY(test.record == before);
    QVERIFY(test.host.calls.isEmpty());
    QVERIFY(test.registry.isEmpty());
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from settings")).toInt(), 0);
}

void TestSettingsPage::theHelpButtonWaitsForAHelp()
{
    SettingsPageUnderTest test;
    const QSignalSpy requested(&test.page, &SettingsPage::helpRequested);
    test.press("btnHelpSettings");
    QCOMPARE(requested.size(), 0);
    test.page.setHelpEnabled(true);
    test.press("btnHelpSettings");
    QCOMPARE(requested.size(), 1);
}

void TestSettingsPage::theBoxesCanBeAskedBeforeTheyAreSaved()
{
    SettingsPageUnderTest test;
    for (const bool checked : {true, false}) {
        test.setAll(checked);
        QCOMPARE(test.page.showTodayTasksChecked(), checked);
        QCOMPARE(test.page.showGridChecked(), checked);
        QCOMPARE(test.page.showBallonChecked(), checked);
        QCOMPARE(test.page.showStatusChecked(), checked);
        QCOMPARE(test.page.showDueDateChecked(), checked);
        QCOMPARE(test.page.showPeriorityChecked(), checked);
        QCOMPARE(test.page.showReminderChecked(), checked);
    }
}

AMBERTASK_TEST_MAIN(TestSettingsPage)
#include "tst_settings_page.moc"

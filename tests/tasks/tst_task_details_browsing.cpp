#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <stdexcept>

class TestTaskDetailsBrowsing : public TestCase
{
    Q_OBJECT

private slots:
    void theFileDialogOffersPrograms();
    void theCheckerRestsWhileAFileIsChosen();
    void aCancelledFileDialogEmptiesThePath();
    void aFailingFileDialogIsNotReportedAndStartsTheCheckerAgain();
    void theSoundDialogOffersWaveFilesOfTheProgram();
    void theCheckerRunsOnWhileASoundIsChosen();
    void aCancelledSoundDialogEmptiesThePath();
    void aFailingSoundDialogIsNotReported();
    void aPathWithLeadingBlanksIsStoredAsChosen();

private:
    static void openPaths(const TaskDialog& dialog)
    {
        dialog.showValid();
        dialog.click("chkEnableReminder");
        dialog.click("chkReminderSound");
        dialog.click("chkReminderFile");
        dialog.setText("txtReminderSound", QStringLiteral("before.wav"));
        dialog.setText("txtReminderFile", QStringLiteral("before"));
    }
};

void TestTaskDetailsBrowsing::theFileDialogOffersPrograms()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("/bin/true"), [](const FileDialogRequest& request) {
        QCOMPARE(request.filter, QStringLiteral("Executable Files (*.exe;*.bat;)|*.exe;*.bat"));
        QCOMPARE(request.fileName, QString());
        QCOMPARE(request.initialFolder, QString());
        QVERIFY(request.fileMustExist);
        QVERIFY(request.executables);
    });
    dialog.click("btnFileBrowse");
    QCOMPARE(dialog.text("txtReminderFile"), QStringLiteral("/bin/true"));
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("before.wav"));
}

void TestTaskDetailsBrowsing::theCheckerRestsWhileAFileIsChosen()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("/bin/true"),
        [&](const FileDialogRequest&) { QVERIFY(!dialog.services.checkerTimer.enabled); });
    dialog.click("btnFileBrowse");
    QCOMPARE(dialog.services.checkerTimer.switches, QList<bool>({false, true}));
}

void TestTaskDetailsBrowsing::aCancelledFileDialogEmptiesThePath()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen({});
    dialog.click("btnFileBrowse");
    QCOMPARE(dialog.text("txtReminderFile"), QString());
    QVERIFY(dialog.services.checkerTimer.enabled);
}

void TestTaskDetailsBrowsing::aFailingFileDialogIsNotReportedAndStartsTheCheckerAgain()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(
        QStringLiteral("/bin/true"), [](const FileDialogRequest&) { throw std::runtime_error("no dialog"); });
    dialog.click("btnFileBrowse");
    QCOMPARE(dialog.text("txtReminderFile"), QStringLiteral("before"));
    QVERIFY(dialog.services.checkerTimer.enabled);
    QVERIFY(dialog.services.dialogs.allUsed());
}

void TestTaskDetailsBrowsing::theSoundDialogOffersWaveFilesOfTheProgram()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("/tmp/a.wav"), [&](const FileDialogRequest& request) {
        QCOMPARE(request.filter, QStringLiteral("Wave Files (*.wav)|*.wav"));
        QCOMPARE(request.fileName, QString());
        QCOMPARE(request.initialFolder, dialog.services.database.folder() + QStringLiteral("/sounds"));
        QVERIFY(request.fileMustExist);
        QVERIFY(!request.executables);
    });
    dialog.click("btnSoundBrowse");
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("/tmp/a.wav"));
    QCOMPARE(dialog.text("txtReminderFile"), QStringLiteral("before"));
}

void TestTaskDetailsBrowsing::theCheckerRunsOnWhileASoundIsChosen()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("/tmp/a.wav"),
        [&](const FileDialogRequest&) { QVERIFY(dialog.services.checkerTimer.switches.isEmpty()); });
    dialog.click("btnSoundBrowse");
    QCOMPARE(dialog.services.checkerTimer.switches, QList<bool>({true}));
}

void TestTaskDetailsBrowsing::aCancelledSoundDialogEmptiesThePath()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen({});
    dialog.click("btnSoundBrowse");
    QCOMPARE(dialog.text("txtReminderSound"), QString());
    QCOMPARE(dialog.services.checkerTimer.switches, QList<bool>({true}));
}

void TestTaskDetailsBrowsing::aFailingSoundDialogIsNotReported()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("/tmp/a.wav"),
        [](const FileDialogRequest&) { throw std::runtime_error("no dialog"); });
    dialog.click("btnSoundBrowse");
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("before.wav"));
    QVERIFY(dialog.services.dialogs.allUsed());
}

void TestTaskDetailsBrowsing::aPathWithLeadingBlanksIsStoredAsChosen()
{
    TaskDialog dialog;
    openPaths(dialog);
    dialog.services.dialogs.expectOpen(QStringLiteral("  /bin/run me "));
    dialog.services.dialogs.expectOpen(QStringLiteral(" /tmp/a.wav"));
    dialog.click("btnFileBrowse");
    dialog.click("btnSoundBrowse");
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("reminder_file")).toString(), QStringLiteral("  /bin/run me "));
    QCOMPARE(dialog.stored(QStringLiteral("reminder_sound")).toString(), QStringLiteral(" /tmp/a.wav"));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsBrowsing)
#include "tst_task_details_browsing.moc"

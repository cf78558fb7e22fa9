#include "data/ClsTask.h"
#include "data/DataFileCopies.h"
#include "data/TaskCodes.h"
#include "settings/DeadOperation.h"
#include "settings/RestoreUnderTest.h"
#include "settings/SettingsPageUnderTest.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"

#include <QDir>

class TestRestore : public TestCase
{
    Q_OBJECT

private slots:
    void aBackupBringsItsTasksAndCategoriesBack();
    void theDataFileBecomesTheBackupByteForByteAndPrivate();
    void whatWasReplacedIsKeptBeside();
    void theSettingsOnThePageSurviveTheRestore();
    void theCheckerRestsUntilEverythingIsReloaded();
    void theDialogAsksForABackup();
    void theDialogOffersTheFolderOfTheCopies();
    void aRestoreWithoutACopyIsDoneAndSaysSo();
    void aCancelledDialogChangesNothing();
    void theLineSaysWhatCameBackAndWhereTheOtherIs();
    void theLineCountsOneTaskAndNone();
    void aRefusedFileIsToldWithItsReason();
    void aBackupOfAnUnfinishedOperationIsRefused();
    void theDataFileIsNotItsOwnBackup();
    void theFileOfTheLastRestoreCanBeRestored();
    void aBackupWithoutASettingsRowIsRestored();
    void aBackupOfAnEarlierVersionWithoutItsIndexesIsRestored();
    void aDamagedDataFileIsReplaced();
    void aMissingDataFileIsReplaced();
    void theJournalOfADeadProcessDoesNotReachTheNewFile();
    void aRestoreThatIsCancelledChangesNothing_data();
    void aRestoreThatIsCancelledChangesNothing();
    void theReplacedFileAndTheDataFileAreTwoFiles();
    void theJournalOfAMissingDataFileDoesNotReachTheNewFile();
    void nothingIsLeftBehind();
    void whatADeadRestoreLeftGoesWithTheNext();
    void aLinkInThePlaceOfTheCheckingFolderIsNotFollowed();
};

void TestRestore::aBackupBringsItsTasksAndCategoriesBack()
{
    RestoreUnderTest test;
    test.database.sql(QStringLiteral("delete from categories"));
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from categories")).toInt(), 4);
    QCOMPARE(test.restored.size(), 1);
}

void TestRestore::theDataFileBecomesTheBackupByteForByteAndPrivate()
{
    RestoreUnderTest test;
    QVERIFY(QFile::setPermissions(test.backup(),
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther));
    test.restore(test.backup());
    QVERIFY(contentOf(test.database.dataFile()) == contentOf(test.backup()));
    const QFileDevice::Permissions permissions = QFile::permissions(test.database.dataFile());
    QVERIFY(!permissions.testFlag(QFileDevice::ReadGroup) && !permissions.testFlag(QFileDevice::ReadOther));
}

void TestRestore::whatWasReplacedIsKeptBeside()
{
    RestoreUnderTest test;
    const QByteArray replaced = contentOf(test.database.dataFile());
    test.restore(test.backup());
    QVERIFY(contentOf(test.pathOf(QStringLiteral("data.dat.before-restore"))) == replaced);
}

void TestRestore::theSettingsOnThePageSurviveTheRestore()
{
    SettingsPageUnderTest settings;
    MaintenancePage page(settings.services);
    page.prepareFilters();
    connect(&page, &MaintenancePage::dataRestored, &settings.page, &SettingsPage::btnSave_Click);
    const QTemporaryDir elsewhere;
    const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
    settings.database.sql(QStringLiteral("update settings set skin='Classic', show_grid=0, always_on_top=0"));
    DataFileCopies(settings.database.engine()).backUpTo(backup);
    settings.setAll(true);
    settings.cmbSkins()->setCurrentText(QStringLiteral("Lemon"));

    settings.dialogs.expectOpen(backup);
    QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("btnRestore")), Qt::LeftButton);

    QCOMPARE(settings.database.rows(QStringLiteral("select * from settings")),
        QList<QVariantList>({{1, 1, 1, QStringLiteral("Lemon"), 1, 1, 1, 1, 1, 1, 1}}));
    QVERIFY(settings.record.always_on_top);
    QVERIFY(!settings.runEntry().isEmpty());
    QCOMPARE(settings.host.calls.last(), QStringLiteral("LoadTasks"));
}

void TestRestore::theCheckerRestsUntilEverythingIsReloaded()
{
    RestoreUnderTest test;
    bool restedAtTheEnd = false;
    connect(&test.page, &MaintenancePage::dataRestored, &test.page,
        [&] { restedAtTheEnd = !test.checkerTimer.enabled; });
    test.restore(test.backup());
    QVERIFY(restedAtTheEnd);
    QCOMPARE(test.checkerTimer.switches, QList<bool>({false, true}));
}

void TestRestore::theDialogAsksForABackup()
{
    RestoreUnderTest test;
    test.dialogs.expectOpen({}, [&](const FileDialogRequest& request) {
        QVERIFY(!test.checkerTimer.enabled);
        QVERIFY(request.fileName.isEmpty());
        QCOMPARE(request.filter, QStringLiteral("Ambertaks Backup Files (*.abk)|*.abk"));
        QVERIFY2(request.anyName, "the name that a backup is offered would not be seen");
    });
    test.press("btnRestore");
}

void TestRestore::theDialogOffersTheFolderOfTheCopies()
{
    RestoreUnderTest test;
    test.dialogs.expectOpen({}, [&](const FileDialogRequest& request) {
        QCOMPARE(request.sideFolder, test.pathOf(QStringLiteral("copies")));
    });
    test.press("btnRestore");
    test.dialogs.expectSave(
        {}, [&](const FileDialogRequest& request) { QCOMPARE(request.sideFolder, QString()); });
    test.press("btnBackup");
}

void TestRestore::aRestoreWithoutACopyIsDoneAndSaysSo()
{
    RestoreUnderTest test;
    writeText(test.pathOf(QStringLiteral("copies")), "not a folder");
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QVERIFY2(test.said().endsWith(
                 QLatin1String("is in data.dat.before-restore. No copy was kept: it is not a folder")),
        qPrintable(test.said()));
}

void TestRestore::theLineSaysWhatCameBackAndWhereTheOtherIs()
{
    RestoreUnderTest test;
    for (int i = 0; i < 35; ++i) {
        aTask(test.database).add();
    }
    // The list shows no task whose category is gone.
    aTask(test.database).in(31000).add();
    test.database.sql(QStringLiteral("delete from tasks where task_name='after'"));
    const QString backup = test.elsewhere.filePath(QStringLiteral("many.abk"));
    DataFileCopies(test.database.engine()).backUpTo(backup);
    test.restore(backup);
    QCOMPARE(test.said(),
        QStringLiteral("Restored 35 tasks from \"%1\"; what was there before is in data.dat.before-restore")
            .arg(QDir::toNativeSeparators(backup)));
}

void TestRestore::theLineCountsOneTaskAndNone()
{
    RestoreUnderTest test;
    test.restore(test.backup());
    QVERIFY2(test.said().startsWith(QLatin1String("Restored 1 task from ")), qPrintable(test.said()));
    test.database.sql(QStringLiteral("delete from tasks"));
    const QString empty = test.elsewhere.filePath(QStringLiteral("none.abk"));
    DataFileCopies(test.database.engine()).backUpTo(empty);
    test.restore(empty);
    QVERIFY2(test.said().startsWith(QLatin1String("Restored 0 tasks from ")), qPrintable(test.said()));
}

void TestRestore::aRefusedFileIsToldWithItsReason()
{
    RestoreUnderTest test;
    const QString letter = test.elsewhere.filePath(QStringLiteral("letter.abk"));
    writeText(letter, "Dear Sir or Madam");
    test.restore(letter);
    QCOMPARE(test.said(), QStringLiteral("Nothing was restored: \"%1\" is no data file.").arg(letter));
    const QString missing = test.elsewhere.filePath(QStringLiteral("missing.abk"));
    test.restore(missing);
    QCOMPARE(test.said(), QStringLiteral("Nothing was restored: the file or its folder does not exist"));
    test.dialogs.expectOpen({});
    test.find<QPushButton>("btnRestore")->click();
    QCOMPARE(test.said(), QString());
}

void TestRestore::aCancelledDialogChangesNothing()
{
    RestoreUnderTest test;
    const QByteArray before = contentOf(test.database.dataFile());
    test.restore({});
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QVERIFY(test.checkerTimer.enabled);
    QCOMPARE(test.restored.size(), 0);
}

void TestRestore::aBackupOfAnUnfinishedOperationIsRefused()
{
    RestoreUnderTest test;
    const QByteArray before = contentOf(test.database.dataFile());
    writeText(test.backup() + QStringLiteral("-journal"), "unfinished");
    test.restore(test.backup());
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QCOMPARE(test.restored.size(), 0);
}

void TestRestore::theDataFileIsNotItsOwnBackup()
{
    RestoreUnderTest test;
    test.restore(test.database.dataFile());
    QCOMPARE(test.restored.size(), 0);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("after")));
}

void TestRestore::theFileOfTheLastRestoreCanBeRestored()
{
    RestoreUnderTest test;
    test.restore(test.backup());
    test.restore(test.pathOf(QStringLiteral("data.dat.before-restore")));
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("after")));
    QCOMPARE(test.restored.size(), 2);
}

void TestRestore::aBackupWithoutASettingsRowIsRestored()
{
    RestoreUnderTest test;
    execute(test.backup(), "delete from settings");
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
}

void TestRestore::aBackupOfAnEarlierVersionWithoutItsIndexesIsRestored()
{
    RestoreUnderTest test;
    execute(test.backup(), "drop index tasks_by_status; drop index tasks_by_category");
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    const auto done = ClsTask(test.database.engine())
                          .GetTasks(1, TaskStatus::NotStarted, TaskSort::None, false, {}, {}, TaskType::All);
    QCOMPARE(done.size(), std::size_t(1));
}

void TestRestore::aDamagedDataFileIsReplaced()
{
    RestoreUnderTest test;
    writeText(test.database.dataFile(), "no database any more");
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QCOMPARE(contentOf(test.pathOf(QStringLiteral("data.dat.before-restore"))),
        QByteArray("no database any more"));
}

void TestRestore::aMissingDataFileIsReplaced()
{
    RestoreUnderTest test;
    QVERIFY(QFile::remove(test.database.dataFile()));
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
}

void TestRestore::theJournalOfADeadProcessDoesNotReachTheNewFile()
{
    RestoreUnderTest test;
    test.database.sql(TwoHundredTasks);
    const QTemporaryDir dead;
    leaveDeadOperation(test.database.dataFile(), dead.path());
    const DatabaseEngine engine{dead.path(), &test.services.clock, nullptr};
    DataFileCopies(engine).restoreFrom(test.backup());
    QVERIFY(contentOf(dead.filePath(QStringLiteral("data.dat"))) == contentOf(test.backup()));
    QVERIFY(!QFileInfo::exists(dead.filePath(QStringLiteral("data.dat-journal"))));
    QVERIFY(contentOf(dead.filePath(QStringLiteral("data.dat.before-restore")))
        == contentOf(test.database.dataFile()));
}

void TestRestore::aRestoreThatIsCancelledChangesNothing_data()
{
    QTest::addColumn<CancellingProgress::At>("at");
    QTest::newRow("while it copies") << CancellingProgress::At::FirstStep;
    QTest::newRow("while it checks") << CancellingProgress::At::UnknownLength;
}

void TestRestore::aRestoreThatIsCancelledChangesNothing()
{
    QFETCH(CancellingProgress::At, at);
    RestoreUnderTest test;
    // Enough to be told of while the check runs.
    for (int i = 0; i < 10; ++i) {
        execute(test.backup(), qPrintable(TwoHundredTasks));
    }
    CancellingProgress progress(at);
    QVERIFY(caught<Cancelled>([&] {
        DataFileCopies(test.database.engine()).restoreFrom(test.backup(), &progress);
    }).has_value());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("after")));
    QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
}

void TestRestore::theReplacedFileAndTheDataFileAreTwoFiles()
{
    RestoreUnderTest test;
    const QString replaced = test.pathOf(QStringLiteral("data.dat.before-restore"));
    for (int i = 0; i < 2; ++i) {
        test.restore(test.backup());
        QVERIFY(!isSameFile(test.database.dataFile(), replaced));
    }
    aTask(test.database).named(QStringLiteral("later")).add();
    QVERIFY(contentOf(replaced) == contentOf(test.backup()));
}

void TestRestore::nothingIsLeftBehind()
{
    RestoreUnderTest test;
    test.restore(test.backup());
    QCOMPARE(test.files(),
        QStringList({QStringLiteral("copies"), QStringLiteral("data.dat"),
            QStringLiteral("data.dat.before-restore")}));
}

void TestRestore::theJournalOfAMissingDataFileDoesNotReachTheNewFile()
{
    RestoreUnderTest test;
    test.database.sql(TwoHundredTasks);
    const QTemporaryDir dead;
    leaveDeadOperation(test.database.dataFile(), dead.path());
    QVERIFY(QFile::remove(dead.filePath(QStringLiteral("data.dat"))));
    const DatabaseEngine engine{dead.path(), &test.services.clock, nullptr};
    QVERIFY(caught<FileError>([&] { DataFileCopies(engine).restoreFrom(test.backup()); }));
    QVERIFY(!QFileInfo::exists(dead.filePath(QStringLiteral("data.dat"))));
    QVERIFY(QFileInfo(dead.filePath(QStringLiteral("data.dat-journal"))).size() > 0);
}

void TestRestore::whatADeadRestoreLeftGoesWithTheNext()
{
    RestoreUnderTest test;
    QVERIFY(QDir().mkdir(test.pathOf(QStringLiteral(".restore"))));
    writeText(test.pathOf(QStringLiteral(".restore/data.dat")), "half a cop");
    writeText(test.pathOf(QStringLiteral(".restore/data.dat-journal")), "and its journal");
    writeText(test.pathOf(QStringLiteral(".ambertask-0123456789abcdef0123456789abcdef")), "half a copy");
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QCOMPARE(test.files(),
        QStringList({QStringLiteral("copies"), QStringLiteral("data.dat"),
            QStringLiteral("data.dat.before-restore")}));
}

void TestRestore::aLinkInThePlaceOfTheCheckingFolderIsNotFollowed()
{
    RestoreUnderTest test;
    writeText(test.elsewhere.filePath(QStringLiteral("precious")), "x");
    QVERIFY(QFile::link(test.elsewhere.path(), test.pathOf(QStringLiteral(".restore"))));
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QVERIFY(QFileInfo::exists(test.elsewhere.filePath(QStringLiteral("precious"))));
    QVERIFY(!QFileInfo(test.pathOf(QStringLiteral(".restore"))).isSymLink());
}

AMBERTASK_TEST_MAIN(TestRestore)
#include "tst_restore.moc"

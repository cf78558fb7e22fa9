#include "data/DataFileCopies.h"
#include "settings/DeadOperation.h"
#include "settings/MaintenancePageUnderTest.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/FullDisk.h"
#include "support/OtherProgram.h"
#include "support/TestMain.h"

#include <unistd.h>

class TestBackup : public TestCase
{
    Q_OBJECT

private slots:
    void theProposedNameHoldsTheDateWithDashes();
    void theCopyIsByteIdenticalAndPrivate();
    void theCopyReplacesAnOlderOne();
    void aLinkIsFollowedToTheFileItPointsTo();
    void theCheckerRestsFromTheDialogToTheEndOfTheCopy();
    void aCancelledDialogChangesNothing();
    void aTargetThatCannotBeWrittenIsToldInTheLineAlone_data();
    void aTargetThatCannotBeWrittenIsToldInTheLineAlone();
    void theLineSaysWhereTheCopyIs();
    void aDialogThatIsCancelledSaysNothing();
    void theDataFileItselfIsNeverTheTarget_data();
    void theDataFileItselfIsNeverTheTarget();
    void aFullDiskLeavesTheOlderBackup();
    void aCancelledCopyLeavesTheOlderBackup();
    void theJournalOfADeadProcessIsRolledBackFirst();
    void aJournalWithoutContentHoldsUpNoBackup();
    void nobodyCommitsWhileTheFileIsRead();
    void noStatementIsSent();
    void noHandleToTheDataFileStaysOpen();
};

void TestBackup::theProposedNameHoldsTheDateWithDashes()
{
    MaintenancePageUnderTest test;
    test.dialogs.expectSave({}, [](const FileDialogRequest& request) {
        QCOMPARE(request.fileName, QStringLiteral("Ambertaks 1-15-2026"));
        QCOMPARE(request.filter, QStringLiteral("Ambertaks Backup Files (*.abk)|*.abk"));
        QVERIFY(request.promptBeforeOverwriting);
    });
    test.press("btnBackup");
}

void TestBackup::theCopyIsByteIdenticalAndPrivate()
{
    MaintenancePageUnderTest test;
    aTask(test.database).named(QStringLiteral("kept")).add();
    const QString backup = test.pathOf(QStringLiteral("Ambertaks 1-15-2026"));
    test.dialogs.expectSave(backup);
    test.press("btnBackup");
    QVERIFY(!contentOf(backup).isEmpty());
    QVERIFY(contentOf(backup) == contentOf(test.database.dataFile()));
    const QFileDevice::Permissions permissions = QFile::permissions(backup);
    QVERIFY(!permissions.testFlag(QFileDevice::ReadGroup) && !permissions.testFlag(QFileDevice::ReadOther));
    QCOMPARE(test.files(), QStringList({QStringLiteral("Ambertaks 1-15-2026"), QStringLiteral("data.dat")}));
}

void TestBackup::theCopyReplacesAnOlderOne()
{
    MaintenancePageUnderTest test;
    const QString backup = test.pathOf(QStringLiteral("old.abk"));
    writeText(backup, QByteArray(500000, 'x'));
    test.dialogs.expectSave(backup);
    test.press("btnBackup");
    QVERIFY(contentOf(backup) == contentOf(test.database.dataFile()));
}

void TestBackup::aLinkIsFollowedToTheFileItPointsTo()
{
    MaintenancePageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString real = elsewhere.filePath(QStringLiteral("real.abk"));
    const QString link = test.pathOf(QStringLiteral("link.abk"));
    writeText(real, "old");
    QVERIFY(QFile::link(real, link));
    test.dialogs.expectSave(link);
    test.press("btnBackup");
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(contentOf(real) == contentOf(test.database.dataFile()));
}

void TestBackup::theCheckerRestsFromTheDialogToTheEndOfTheCopy()
{
    MaintenancePageUnderTest test;
    test.dialogs.expectSave(test.pathOf(QStringLiteral("b.abk")),
        [&](const FileDialogRequest&) { QVERIFY(!test.checkerTimer.enabled); });
    test.press("btnBackup");
    QCOMPARE(test.checkerTimer.switches, QList<bool>({false, true}));
}

void TestBackup::aCancelledDialogChangesNothing()
{
    MaintenancePageUnderTest test;
    const QByteArray before = contentOf(test.database.dataFile());
    test.dialogs.expectSave({});
    test.press("btnBackup");
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    QVERIFY(test.checkerTimer.enabled);
}

void TestBackup::aTargetThatCannotBeWrittenIsToldInTheLineAlone_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("why");
    QTest::newRow("no such folder") << "/nowhere/b.abk"
                                    << "the file or its folder does not exist";
    QTest::newRow("a folder") << "folder"
                              << "it is not a file";
    QTest::newRow("a device") << "/dev/null"
                              << "it is not a file";
    QTest::newRow("a name of 300 letters") << QString(300, u'n') << "the name is too long";
    QTest::newRow("the data file") << "data.dat"
                                   << "\"%1\" is the data file itself.";
}

void TestBackup::aTargetThatCannotBeWrittenIsToldInTheLineAlone()
{
    QFETCH(const QString, target);
    QFETCH(const QString, why);
    MaintenancePageUnderTest test;
    QVERIFY(QDir(test.database.folder()).mkdir(QStringLiteral("folder")));
    const QString file = target.startsWith(u'/') ? target : test.pathOf(target);
    test.dialogs.expectSave(file);
    test.press("btnBackup");
    QCOMPARE(test.said(),
        QStringLiteral("The backup could not be written: ") + (why.contains(u'%') ? why.arg(file) : why));
    QVERIFY(test.checkerTimer.enabled);
    QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), QStringLiteral("folder")}));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
}

void TestBackup::theLineSaysWhereTheCopyIs()
{
    MaintenancePageUnderTest test;
    const QString backup = test.pathOf(QStringLiteral("<i>b<i>.abk"));
    test.dialogs.expectSave(backup);
    test.press("btnBackup");
    QCOMPARE(test.said(), QStringLiteral("Backup saved to \"%1\"").arg(backup));
}

void TestBackup::aDialogThatIsCancelledSaysNothing()
{
    MaintenancePageUnderTest test;
    test.dialogs.expectSave(test.pathOf(QStringLiteral("b.abk")));
    test.press("btnBackup");
    test.dialogs.expectSave({});
    // Assistive technology presses without a key.
    test.find<QPushButton>("btnBackup")->click();
    QCOMPARE(test.said(), QString());
}

void TestBackup::theDataFileItselfIsNeverTheTarget_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("by name") << QStringLiteral("data.dat");
    QTest::newRow("by a detour") << QStringLiteral("sub/../data.dat");
    QTest::newRow("by a link") << QStringLiteral("link.abk");
    QTest::newRow("by a second name") << QStringLiteral("hard.abk");
    QTest::newRow("its journal") << QStringLiteral("data.dat-journal");
}

void TestBackup::theDataFileItselfIsNeverTheTarget()
{
    QFETCH(const QString, name);
    MaintenancePageUnderTest test;
    QVERIFY(QDir(test.database.folder()).mkdir(QStringLiteral("sub")));
    QVERIFY(QFile::link(test.database.dataFile(), test.pathOf(QStringLiteral("link.abk"))));
    QCOMPARE(::link(QFile::encodeName(test.database.dataFile()).constData(),
                 QFile::encodeName(test.pathOf(QStringLiteral("hard.abk"))).constData()),
        0);
    const QStringList before = test.files();
    const auto error =
        caught<RuntimeError>([&] { DataFileCopies(test.database.engine()).backUpTo(test.pathOf(name)); });
    QVERIFY(error.has_value());
    QCOMPARE(test.files(), before);
    QVERIFY(QFileInfo(test.pathOf(QStringLiteral("link.abk"))).isSymLink());
}

void TestBackup::aFullDiskLeavesTheOlderBackup()
{
    MaintenancePageUnderTest test;
    const QString backup = test.pathOf(QStringLiteral("old.abk"));
    writeText(backup, "old");
    test.dialogs.expectSave(backup);
    {
        const FullDisk disk(8192);
        test.press("btnBackup");
    }
    QCOMPARE(contentOf(backup), QByteArray("old"));
    QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), QStringLiteral("old.abk")}));
    QVERIFY(test.checkerTimer.enabled);
    QCOMPARE(test.said(), QStringLiteral("The backup could not be written: the file would be too large"));
}

void TestBackup::aCancelledCopyLeavesTheOlderBackup()
{
    MaintenancePageUnderTest test;
    const QString backup = test.pathOf(QStringLiteral("old.abk"));
    writeText(backup, "old");
    CancellingProgress progress(CancellingProgress::At::FirstStep);
    QVERIFY(caught<Cancelled>([&] {
        DataFileCopies(test.database.engine()).backUpTo(backup, &progress);
    }).has_value());
    QCOMPARE(progress.lastDone, QFileInfo(test.database.dataFile()).size());
    QCOMPARE(contentOf(backup), QByteArray("old"));
    QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), QStringLiteral("old.abk")}));
}

void TestBackup::theJournalOfADeadProcessIsRolledBackFirst()
{
    MaintenancePageUnderTest test;
    test.database.sql(TwoHundredTasks);
    const QTemporaryDir dead;
    leaveDeadOperation(test.database.dataFile(), dead.path());
    const DatabaseEngine engine{dead.path(), &test.services.clock, nullptr};
    const QString backup = test.pathOf(QStringLiteral("b.abk"));
    DataFileCopies(engine).backUpTo(backup);
    QVERIFY(contentOf(backup) == contentOf(test.database.dataFile()));
    QVERIFY(!QFileInfo::exists(dead.filePath(QStringLiteral("data.dat-journal"))));
}

void TestBackup::aJournalWithoutContentHoldsUpNoBackup()
{
    MaintenancePageUnderTest test;
    const QString backup = test.pathOf(QStringLiteral("b.abk"));
    // A power cut can leave a journal with a length but without content.
    for (const QByteArray& left : {QByteArray(), QByteArray(1024, '\0')}) {
        writeText(test.pathOf(QStringLiteral("data.dat-journal")), left);
        DataFileCopies(test.database.engine()).backUpTo(backup);
        QVERIFY(contentOf(backup) == contentOf(test.database.dataFile()));
        QVERIFY(QFile::remove(backup));
    }
}

void TestBackup::nobodyCommitsWhileTheFileIsRead()
{
    MaintenancePageUnderTest test;
    aTask(test.database).describedAs(QString(2'000'000, u'x')).add();
    const QByteArray before = contentOf(test.database.dataFile());
    OtherProgram other(test.database, OtherProgram::Writing);
    QVERIFY(other.holds());
    other.run("rollback");
    class Intruding final : public Progress
    {
    public:
        explicit Intruding(OtherProgram& other) : m_other(other) { }
        void advance(qint64, qint64) override
        {
            m_other.run("begin immediate; delete from tasks; commit");
            written += m_other.holds() ? 1 : 0;
            m_other.run("rollback");
            ++steps;
        }
        int steps = 0;
        int written = 0;

    private:
        OtherProgram& m_other;
    };
    Intruding progress(other);
    const QString backup = test.pathOf(QStringLiteral("backup"));
    DataFileCopies(test.database.engine()).backUpTo(backup, &progress);
    QVERIFY(progress.steps > 1);
    QCOMPARE(progress.written, 0);
    QVERIFY(contentOf(backup) == before);
    other.run("begin immediate; delete from tasks; commit");
    QVERIFY(other.holds());
}

void TestBackup::noStatementIsSent()
{
    MaintenancePageUnderTest test;
    test.dialogs.expectSave(test.pathOf(QStringLiteral("b.abk")));
    test.press("btnBackup");
    QVERIFY(test.database.statements().take().isEmpty());
    QCOMPARE(test.database.statements().opened(), test.database.statements().closed());
}

void TestBackup::noHandleToTheDataFileStaysOpen()
{
    MaintenancePageUnderTest test;
    test.dialogs.expectSave(test.pathOf(QStringLiteral("b.abk")));
    test.press("btnBackup");
    for (const QFileInfo& handle :
        QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System)) {
        QVERIFY2(
            !handle.symLinkTarget().startsWith(test.database.folder()), qPrintable(handle.symLinkTarget()));
    }
}

AMBERTASK_TEST_MAIN(TestBackup)
#include "tst_backup.moc"

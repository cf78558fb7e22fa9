#include "data/ClsDatabase.h"
#include "data/DataFileCopies.h"
#include "settings/MaintenancePageUnderTest.h"
#include "support/OrdinaryUser.h"
#include "support/TestMain.h"

#include <sys/stat.h>
#include <unistd.h>

namespace
{

int modeOf(const QString& path)
{
    struct stat status {
    };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

void setMode(const QString& path, int mode)
{
    QCOMPARE(chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)), 0);
}

} // namespace

/// The user's tasks are nobody else's business.
class PrivateFilesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aLooserDataFileIsTightened_data()
    {
        QTest::addColumn<int>("found");
        QTest::addColumn<int>("left");
        for (const auto& [found, left] :
            std::initializer_list<std::pair<int, int>>{{0644, 0600}, {0666, 0600}, {0640, 0600}, {0604, 0600},
                {0660, 0600}, {0444, 0400}, {0600, 0600}, {0400, 0400}}) {
            QTest::newRow(qPrintable(QString::number(found, 8))) << found << left;
        }
    }
    void aLooserDataFileIsTightened()
    {
        QFETCH(const int, found);
        QFETCH(const int, left);
        const TestDatabase database;
        setMode(database.dataFile(), found);
        DataFileCopies(database.engine()).keepPrivate();
        QCOMPARE(modeOf(database.dataFile()), left);
    }

    void whatBelongsToTheDataFileIsTightenedToo()
    {
        const TestDatabase database;
        for (const char* suffix : {"-journal", "-wal", ".before-restore"}) {
            const QString file = database.dataFile() + QLatin1String(suffix);
            writeText(file, "of the user");
            setMode(file, 0644);
        }
        DataFileCopies(database.engine()).keepPrivate();
        for (const char* suffix : {"-journal", "-wal", ".before-restore"}) {
            QCOMPARE(modeOf(database.dataFile() + QLatin1String(suffix)), 0600);
        }
    }

    void theFileBehindALinkIsTheDataFile()
    {
        const TestDatabase database;
        const QTemporaryDir elsewhere;
        const QString place = elsewhere.filePath(QStringLiteral("mine.dat"));
        const QString before = place + QStringLiteral(".before-restore");
        QVERIFY(QFile::rename(database.dataFile(), place) && QFile::link(place, database.dataFile()));
        writeText(before, "of the user");
        setMode(place, 0644);
        setMode(before, 0644);
        DataFileCopies(database.engine()).keepPrivate();
        QCOMPARE(modeOf(place), 0600);
        QCOMPARE(modeOf(before), 0600);
    }

    void aLinkBesideTheDataFileIsNotFollowed()
    {
        const TestDatabase database;
        const QTemporaryDir elsewhere;
        const QString other = elsewhere.filePath(QStringLiteral("page.html"));
        writeText(other, "for everybody");
        setMode(other, 0644);
        QVERIFY(QFile::link(other, database.dataFile() + QStringLiteral(".before-restore")));
        DataFileCopies(database.engine()).keepPrivate();
        QCOMPARE(modeOf(other), 0644);
    }

    void aMissingFileIsNoError()
    {
        const TestDatabase database;
        QVERIFY(QFile::remove(database.dataFile()));
        DataFileCopies(database.engine()).keepPrivate();
        QVERIFY(!QFile::exists(database.dataFile()));
    }

    void aFileOfAnotherUserStaysAndServes()
    {
        const TestDatabase database;
        if (geteuid() == 0) {
            setMode(database.folder(), 0755);
            setMode(database.dataFile(), 0644);
        } else {
            QVERIFY(QFile::remove(database.dataFile()));
            QVERIFY(QFile::link(QStringLiteral("/etc/passwd"), database.dataFile()));
        }
        const int before = modeOf(QFileInfo(database.dataFile()).canonicalFilePath());
        QVERIFY((before & 077) != 0);
        const int status = asAnOrdinaryUser([&] {
            DataFileCopies(database.engine()).keepPrivate();
            QFile file(database.dataFile());
            return file.open(QIODevice::ReadOnly);
        });
        QCOMPARE(status, 0);
        QCOMPARE(modeOf(QFileInfo(database.dataFile()).canonicalFilePath()), before);
    }

    void theJournalIsPrivateWhateverTheMask()
    {
        TestDatabase database;
        DataFileCopies(database.engine()).keepPrivate();
        const mode_t mask = umask(0);
        Connection connection = ClsDatabase(database.engine()).Connect();
        connection.open();
        connection.execute(QStringLiteral("delete from categories"));
        const int mode = modeOf(database.dataFile() + QStringLiteral("-journal"));
        umask(mask);
        QCOMPARE(mode, 0600);
    }

    void aLooserBackupIsTightenedWhenItIsRestored()
    {
        MaintenancePageUnderTest test;
        const QTemporaryDir elsewhere;
        const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
        DataFileCopies(test.database.engine()).backUpTo(backup);
        setMode(backup, 0644);
        test.dialogs.expectOpen(backup);
        test.press("btnRestore");
        QCOMPARE(test.restored.size(), 1);
        QCOMPARE(modeOf(backup), 0600);
    }

    void aFileThatIsNoBackupKeepsItsMode()
    {
        MaintenancePageUnderTest test;
        const QTemporaryDir elsewhere;
        const QString other = elsewhere.filePath(QStringLiteral("page.html"));
        writeText(other, "for everybody");
        setMode(other, 0644);
        test.dialogs.expectOpen(other);
        test.press("btnRestore");
        QCOMPARE(test.restored.size(), 0);
        QCOMPARE(modeOf(other), 0644);
    }
};

AMBERTASK_TEST_MAIN(PrivateFilesTest)
#include "tst_private_files.moc"

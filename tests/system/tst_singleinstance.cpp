#include "support/OrdinaryUser.h"
#include "support/TestMain.h"
#include "system/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const QString LockName = QStringLiteral("data.dat-lock");

} // namespace

class SingleInstanceTest : public TestCase
{
    Q_OBJECT

private slots:
    void theSecondCopyOnAFolderSeesTheFirst()
    {
        const QTemporaryDir folder;
        const SingleInstance first(folder.path());
        QVERIFY(!first.otherCopyRuns());
        const SingleInstance second(folder.path());
        QVERIFY(second.otherCopyRuns());
    }

    void copiesOnDifferentFoldersDoNotMeet()
    {
        const QTemporaryDir one;
        const QTemporaryDir other;
        const SingleInstance first(one.path());
        const SingleInstance second(other.path());
        QVERIFY(!second.otherCopyRuns());
    }

    void theGuardEndsWithItsCopyAndLeavesNothingBehind()
    {
        const QTemporaryDir folder;
        std::make_unique<SingleInstance>(folder.path()).reset();
        QVERIFY(QDir(folder.path()).isEmpty());
        const SingleInstance next(folder.path());
        QVERIFY(!next.otherCopyRuns());
    }

    void whoeverMayOnlyReadTheFolderCannotTakeTheGuard()
    {
        const QTemporaryDir folder;
        const int handle =
            ::open(QFile::encodeName(folder.path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(::flock(handle, LOCK_EX | LOCK_NB), 0);
        const SingleInstance guard(folder.path());
        QVERIFY(!guard.otherCopyRuns());
        QCOMPARE(guard.failure(), QString());
        ::close(handle);
    }

    void theGuardLiesOnAPrivateFileWhateverTheMaskIs()
    {
        const QTemporaryDir folder;
        const mode_t before = ::umask(0);
        const SingleInstance guard(folder.path());
        ::umask(before);
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(folder.filePath(LockName)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0600});
    }

    void theFileOfAKilledCopyIsNoGuard()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile(folder.filePath(LockName)).open(QIODevice::WriteOnly));
        const SingleInstance guard(folder.path());
        QVERIFY(!guard.otherCopyRuns());
        QCOMPARE(guard.failure(), QString());
        const SingleInstance second(folder.path());
        QVERIFY(second.otherCopyRuns());
    }

    void somethingElseInItsPlaceIsTold()
    {
        const QTemporaryDir folder;
        const QByteArray path = QFile::encodeName(folder.filePath(LockName));
        const auto refused = [&folder] {
            const SingleInstance guard(folder.path());
            return !guard.otherCopyRuns() && guard.failure().contains(LockName);
        };
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
        QVERIFY(refused());
        QVERIFY(QFile::remove(folder.filePath(LockName)));
        QCOMPARE(::mkdir(path.constData(), 0700), 0);
        QVERIFY(refused());
        QVERIFY(QDir(folder.path()).rmdir(LockName));
        QVERIFY(QFile::link(QStringLiteral("/elsewhere"), folder.filePath(LockName)));
        QVERIFY(refused());
    }

    void whereThereIsNoFolderTheStartTellsIt()
    {
        const QTemporaryDir folder;
        const SingleInstance guard(folder.filePath(QStringLiteral("missing")));
        QVERIFY(!guard.otherCopyRuns());
        QCOMPARE(guard.failure(), QString());
    }

    void aFolderThatCannotBeWrittenIsGuardedToo()
    {
        const QTemporaryDir folder;
        QFile data(folder.filePath(QStringLiteral("data.dat")));
        QVERIFY(data.open(QIODevice::WriteOnly));
        QCOMPARE(::chmod(QFile::encodeName(data.fileName()).constData(), 0444), 0);
        QCOMPARE(::chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
        QCOMPARE(asAnOrdinaryUser([&folder] {
            const SingleInstance first(folder.path());
            const SingleInstance second(folder.path());
            return !first.otherCopyRuns() && first.failure().isEmpty() && second.otherCopyRuns();
        }),
            0);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
            QStringList(QStringLiteral("data.dat")));
        QCOMPARE(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    }
};

AMBERTASK_TEST_MAIN(SingleInstanceTest)
#include "tst_singleinstance.moc"

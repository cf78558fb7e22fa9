#include "InstalledProgram.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"

#include <atomic>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

constexpr QFileDevice::Permissions OfOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup
    | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;

QString failureOf(const InstalledProgram& program)
{
    try {
        program.start();
    } catch (const FileError& error) {
        return error.text();
    }
    return {};
}

} // namespace

class ProgramFolderTest : public TestCase
{
    Q_OBJECT

private slots:
    void theFirstStartMakesItWithTheDataAndALink()
    {
        const InstalledProgram program;
        program.start();
        QCOMPARE(program.namesInFolder(), QStringLiteral("Ambertask data.dat"));
        QCOMPARE(program.read("data.dat"), QByteArray("the data as shipped"));
        QCOMPARE(QFile::symLinkTarget(program.inFolder("Ambertask")), program.installation().executable);
    }

    void folderAndDataArePrivate()
    {
        const InstalledProgram program;
        program.start();
        QCOMPARE(QFile::permissions(program.folder()) & OfOthers, QFileDevice::Permissions());
        QCOMPARE(QFile::permissions(program.inFolder("data.dat")) & OfOthers, QFileDevice::Permissions());
        QVERIFY(QFile::permissions(program.inFolder("data.dat")).testFlag(QFileDevice::WriteOwner));
        // The user's data folder has been made as well.
        QCOMPARE(QFile::permissions(program.userData()) & OfOthers, QFileDevice::Permissions());
    }

    void dataThatAreOnlyReadBecomeWritable()
    {
        const InstalledProgram program;
        QVERIFY(QFile::setPermissions(
            program.shippedPath("data.dat"), QFileDevice::ReadOwner | QFileDevice::ReadOther));
        program.start();
        QVERIFY(QFile::permissions(program.inFolder("data.dat")).testFlag(QFileDevice::WriteOwner));
    }

    void aLaterVersionBringsAndTouchesNothing()
    {
        const InstalledProgram program;
        program.start();
        program.writeOwn("data.dat", "all my tasks");
        program.writeOwn("Skins/Aqua.skf", "aqua as I like it");
        program.ship("data.dat", "the data of version 2");
        program.ship("Skins/Aqua.skf", "aqua 2");
        program.ship("help.chm", "help 2");
        program.start();
        QCOMPARE(program.namesInFolder(), QStringLiteral("Ambertask Skins data.dat"));
        QCOMPARE(program.read("data.dat"), QByteArray("all my tasks"));
        QCOMPARE(program.read("Skins/Aqua.skf"), QByteArray("aqua as I like it"));
    }

    void anUnpackedProgramFolderTakesItsNewDataFileOnce()
    {
        const QTemporaryDir folder;
        const Installation unpacked{folder.filePath("Ambertask"), folder.path(), QString(), folder.path()};
        writeText(folder.filePath("data.new"), "the data as shipped");
        makeProgramFolder(unpacked, folder.path());
        QCOMPARE(contentOf(folder.filePath("data.dat")), QByteArray("the data as shipped"));
        QVERIFY(!QFile::exists(folder.filePath("data.new")));

        // A later version is unpacked over it.
        writeText(folder.filePath("data.dat"), "all my tasks");
        writeText(folder.filePath("data.new"), "the data of version 2");
        makeProgramFolder(unpacked, folder.path());
        QCOMPARE(contentOf(folder.filePath("data.dat")), QByteArray("all my tasks"));
        QVERIFY(!QFile::exists(folder.filePath("data.new")));

        QVERIFY(QFile::remove(folder.filePath("data.dat")));
        makeProgramFolder(unpacked, folder.path());
        QVERIFY(!QFile::exists(folder.filePath("data.dat")));
    }

    void aFolderThatIsThereIsNeverFilled()
    {
        const InstalledProgram program;
        QVERIFY(QDir().mkpath(program.folder()));
        program.start();
        QCOMPARE(program.namesIn(program.folder()), QStringList());
    }

    void aFolderWithoutDataIsLeftAlone()
    {
        const InstalledProgram program;
        program.start();
        QVERIFY(QFile::remove(program.inFolder("data.dat")));
        QVERIFY(QFile::remove(program.inFolder("Ambertask")));
        program.start();
        QCOMPARE(program.namesInFolder(), QString());
    }

    void aLinkThatLeadsNowhereIsNotReplaced()
    {
        const InstalledProgram program;
        const QString away = program.filePath("disk that is not mounted");
        QVERIFY(QDir().mkpath(program.userData()));
        QVERIFY(QFile::link(away, program.folder()));
        program.start();
        QCOMPARE(QFile::symLinkTarget(program.folder()), away);
        QVERIFY(!QFileInfo::exists(away));
        QCOMPARE(program.namesIn(program.userData()), QStringList{QStringLiteral("Ambertask")});
    }

    void aFolderThatCannotBeMadeIsNamed()
    {
        const InstalledProgram program;
        writeText(program.filePath("home/.local"), "a file where a folder should be");
        const QString failure = failureOf(program);
        QVERIFY2(failure.contains(program.filePath("home/.local")), qPrintable(failure));
    }

    void anInstallationWithoutDataIsReportedAndLeavesNothing()
    {
        const InstalledProgram program;
        const QString shippedData = program.shippedPath("data.dat");
        program.drop("data.dat");
        const QString failure = failureOf(program);
        QVERIFY2(failure.contains(shippedData), qPrintable(failure));
        QCOMPARE(program.namesIn(program.userData()), QStringList());
    }

    void whatAnInterruptedFillLeftIsRemoved()
    {
        const InstalledProgram program;
        writeText(program.userData() + QStringLiteral("/.Ambertask-new/data.dat"), "the da");
        writeText(program.userData() + QStringLiteral("/other/file"), "not ours");
        program.start();
        QCOMPARE(program.namesIn(program.userData()),
            QStringList({QStringLiteral("Ambertask"), QStringLiteral("other")}));
        QCOMPARE(program.read("data.dat"), QByteArray("the data as shipped"));
    }

    void ofManyThatStartAtOnceOneFillsTheFolder()
    {
        const InstalledProgram program;
        std::atomic<int> failures = 0;
        std::vector<std::thread> starts;
        for (int i = 0; i < 16; ++i) {
            starts.emplace_back([&program, &failures] {
                try {
                    makeProgramFolder(program.installation(), program.folder());
                } catch (const FileError&) {
                    ++failures;
                }
            });
        }
        for (std::thread& start : starts) {
            start.join();
        }
        QCOMPARE(failures.load(), 0);
        QCOMPARE(program.namesIn(program.userData()), QStringList{QStringLiteral("Ambertask")});
        QCOMPARE(program.read("data.dat"), QByteArray("the data as shipped"));
    }

    void whoeverMayOnlyReadTheDataFolderHoldsUpNoStart()
    {
        const InstalledProgram program;
        QVERIFY(QDir().mkpath(program.userData()));
        const int handle =
            ::open(QFile::encodeName(program.userData()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(::flock(handle, LOCK_EX | LOCK_NB), 0);
        program.start();
        QCOMPARE(program.read("data.dat"), QByteArray("the data as shipped"));
        ::close(handle);
    }

    void aProgramInItsOwnFolderMakesNone()
    {
        const InstalledProgram program;
        Installation unpacked = program.installation();
        unpacked.shippedFolder.clear();
        makeProgramFolder(unpacked, program.folder());
        QVERIFY(!QFileInfo::exists(program.userData()));
    }

    void theLinkFollowsTheExecutable()
    {
        const InstalledProgram program;
        program.start();
        Installation moved = program.installation();
        moved.executable = program.filePath("opt/bin/Ambertask");
        pointToExecutable(moved, program.folder());
        QCOMPARE(QFile::symLinkTarget(program.inFolder("Ambertask")), moved.executable);
        QCOMPARE(program.namesInFolder(), QStringLiteral("Ambertask data.dat"));
    }

    void aLostLinkComesBackPastOneThatWasCutOff()
    {
        const InstalledProgram program;
        program.start();
        QVERIFY(QFile::rename(program.inFolder("Ambertask"), program.inFolder(".Ambertask-link")));
        program.start();
        QCOMPARE(QFile::symLinkTarget(program.inFolder("Ambertask")), program.installation().executable);
        QCOMPARE(program.namesInFolder(), QStringLiteral("Ambertask data.dat"));
    }

    void aProgramThatTheUserPutThereStays()
    {
        const InstalledProgram program;
        program.start();
        QVERIFY(QFile::remove(program.inFolder("Ambertask")));
        program.writeOwn("Ambertask", "a copy from an archive");
        program.start();
        QCOMPARE(program.read("Ambertask"), QByteArray("a copy from an archive"));
    }
};

AMBERTASK_TEST_MAIN(ProgramFolderTest)
#include "tst_programfolder.moc"

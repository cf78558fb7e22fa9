#include "InstalledProgram.h"
#include "platform/FileReplace.h"
#include "support/TestMain.h"

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

class ProgramFolderMadeTest : public TestCase
{
    Q_OBJECT

private slots:
    void theFirstStartCopiesAllThatIsShipped()
    {
        const InstalledProgram program;
        program.start();
        QCOMPARE(program.namesIn(program.folder()),
            QStringList({QStringLiteral("Ambertask"), QStringLiteral("Skins"), QStringLiteral("custom icons"),
                QStringLiteral("data.dat"), QStringLiteral("help.chm"), QStringLiteral("shipped.sha256"),
                QStringLiteral("sounds")}));
        QCOMPARE(program.read("data.dat"), QByteArray("the data as shipped"));
        QCOMPARE(program.read("Skins/Aqua.skf"), QByteArray("aqua 1"));
        QCOMPARE(program.read("sounds/bell.wav"), QByteArray("bell 1"));
        QVERIFY(QFileInfo(program.inFolder("custom icons")).isDir());
    }

    void theFolderHoldsALinkToTheExecutable()
    {
        const InstalledProgram program;
        program.start();
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

    void aReadOnlyTemplateMakesAWritableFolder()
    {
        const InstalledProgram program;
        for (const char* name : {"data.dat", "Skins/Aqua.skf"}) {
            const QString file = program.filePath("usr/share/ambertask/") + QLatin1String(name);
            QVERIFY(QFile::setPermissions(file, QFileDevice::ReadOwner | QFileDevice::ReadOther));
        }
        program.start();
        QVERIFY(QFile::permissions(program.inFolder("data.dat")).testFlag(QFileDevice::WriteOwner));
        QVERIFY(QFile::permissions(program.inFolder("Skins/Aqua.skf")).testFlag(QFileDevice::WriteOwner));
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
        QVERIFY(QFile::remove(program.inFolder("help.chm")));
        QVERIFY(QFile::remove(program.inFolder("shipped.sha256")));
        const QStringList before = program.namesIn(program.folder());
        program.start();
        QCOMPARE(program.namesIn(program.folder()), before);
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
        program.write(program.filePath("home/.local"), "a file where a folder should be");
        const QString failure = failureOf(program);
        QVERIFY2(failure.contains(program.userData()), qPrintable(failure));
    }

    void aTemplateWithoutDataIsReportedAndLeavesNothing()
    {
        const InstalledProgram program;
        const QString shippedData = program.filePath("usr/share/ambertask/data.dat");
        QVERIFY(QFile::remove(shippedData));
        const QString failure = failureOf(program);
        QVERIFY2(failure.contains(shippedData), qPrintable(failure));
        QCOMPARE(program.namesIn(program.userData()), QStringList());
    }

    void whatAnInterruptedFillLeftIsRemoved()
    {
        const InstalledProgram program;
        program.write(program.userData() + QStringLiteral("/.Ambertask-0123/Skins/Aqua.skf"), "aq");
        program.write(program.userData() + QStringLiteral("/.Ambertask-file"), "not ours");
        program.write(program.userData() + QStringLiteral("/other/file"), "not ours");
        program.start();
        QCOMPARE(program.namesIn(program.userData()),
            QStringList(
                {QStringLiteral(".Ambertask-file"), QStringLiteral("Ambertask"), QStringLiteral("other")}));
        QCOMPARE(program.read("Skins/Aqua.skf"), QByteArray("aqua 1"));
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

    void withoutATemplateNothingIsMade()
    {
        const InstalledProgram program;
        Installation unpacked = program.installation();
        unpacked.templateFolder.clear();
        makeProgramFolder(unpacked, program.folder());
        QVERIFY(!QFileInfo::exists(program.userData()));
    }
};

AMBERTASK_TEST_MAIN(ProgramFolderMadeTest)
#include "tst_programfolder_made.moc"

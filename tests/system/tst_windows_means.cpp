#include "support/TestMain.h"
#include "system/FileReplace.h"
#include "system/LockFile.h"
#include "system/Modules.h"
#include "system/ProgramFolder.h"
#include "system/Registry.h"
#include "system/SingleInstance.h"
#include "system/WaveBackend.h"
#include "system/windows/OwnerOnly.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <thread>

using namespace std::chrono_literals;

namespace
{

/// Windows has a function of that name.
using Lock = class LockFile;

constexpr quint32 CurrentUser = 0x80000001;
const QString TestKey = QStringLiteral("Software\\Ambertask tests");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

std::optional<RegistryValue> stored(Registry& registry, const QByteArray& name, qsizetype capacity)
{
    const std::unique_ptr<RegistryKey> key =
        registry.openKey(CurrentUser, TestKey, RegistryValues::AllAccess);
    return key == nullptr ? std::nullopt : key->query(name, capacity);
}

/// A folder in `parent` whose path is longer than the system takes without its prefix.
QString longFolder(const QString& parent)
{
    QString path = parent;
    while (path.size() < 2 * MAX_PATH) {
        path += u'/' + QString(60, u'n');
    }
    return path;
}

/// A tenth of a second of silence.
QByteArray shortWave()
{
    constexpr quint32 Rate = 8000;
    constexpr quint32 Size = Rate / 10;
    const auto number = [](auto value) {
        const auto little = qToLittleEndian(value);
        return QByteArray(reinterpret_cast<const char*>(&little), sizeof(little));
    };
    return "RIFF" + number(quint32{36 + Size}) + "WAVEfmt " + number(quint32{16}) + number(quint16{1})
        + number(quint16{1}) + number(Rate) + number(Rate) + number(quint16{1}) + number(quint16{8}) + "data"
        + number(Size) + QByteArray(Size, '\x80');
}

} // namespace

class WindowsMeansTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTextValueIsWrittenAndReadBack()
    {
        const std::unique_ptr<Registry> registry = makeSystemRegistry();
        const QString path = executableIn(QStringLiteral("C:/Program Files/Ambertask"));
        QCOMPARE(path, QStringLiteral("C:\\Program Files\\Ambertask\\Ambertask.exe"));
        WriteRegString(*registry, CurrentUser, TestKey, QStringLiteral("Ambertask"), path);
        const auto value = stored(*registry, "Ambertask", 1024);
        QVERIFY(value.has_value());
        QCOMPARE(value->type, RegistryValues::Text);
        // The system adds the terminating zero that it was not given.
        QCOMPARE(QByteArray(value->data.constData()), path.toLatin1());
        QVERIFY(!stored(*registry, "Ambertask", path.size() - 1).has_value());
    }

    void aDeletedValueIsGone()
    {
        const std::unique_ptr<Registry> registry = makeSystemRegistry();
        WriteRegString(*registry, CurrentUser, TestKey, QStringLiteral("Ambertask"), QStringLiteral("x"));
        DeleteRegValue(*registry, CurrentUser, TestKey, QStringLiteral("Ambertask"));
        QVERIFY(!stored(*registry, "Ambertask", 1024).has_value());
        DeleteRegValue(*registry, CurrentUser, TestKey + QStringLiteral(" not there"), QStringLiteral("x"));
        QCOMPARE(
            registry->openKey(CurrentUser, TestKey + QStringLiteral(" not there"), RegistryValues::AllAccess),
            nullptr);
    }

    void theSecondCopyOnAFolderSeesTheFirst()
    {
        const QTemporaryDir folder;
        SingleInstance first(folder.path());
        QCOMPARE(first.failure(), QString());
        QVERIFY(!first.otherCopyRuns());
        QVERIFY(SingleInstance(folder.path().toUpper()).otherCopyRuns());
        const QTemporaryDir other;
        QVERIFY(!SingleInstance(other.path()).otherCopyRuns());
        first.release();
        QVERIFY(!SingleInstance(folder.path()).otherCopyRuns());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void aLockIsHeldByOneAndItsFileGoesWithIt()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("lock"));
        auto first = std::make_unique<Lock>(path, Lock::IfHeld::GiveUp);
        QVERIFY(first->isHeld());
        const Lock second(path, Lock::IfHeld::GiveUp);
        QVERIFY(!second.isHeld());
        QVERIFY(second.isHeldElsewhere());
        QCOMPARE(second.failure(), QString());
        std::thread release([&first] {
            std::this_thread::sleep_for(200ms);
            first.reset();
        });
        QVERIFY(Lock(path, Lock::IfHeld::Wait).isHeld());
        release.join();
        QVERIFY(!QFile::exists(path));
    }

    void onlyItsUserTheSystemAndAdministratorsReachAPrivateFile()
    {
        const OwnerOnly security(OwnerOnly::Of::File);
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        QVERIFY(security.attributes() != nullptr);
        QVERIFY(
            GetSecurityDescriptorControl(security.attributes()->lpSecurityDescriptor, &control, &revision));
        QVERIFY(control & SE_DACL_PROTECTED);
        QCOMPARE(int(security.list()->AceCount), 3);
        QVERIFY(currentUserSid().startsWith(QLatin1String("S-1-")));
    }

    void aPrivateFileIsMadeAndReplaced()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("data.dat"));
        replaceByBytes("first", path, PrivateFile);
        makePrivate(path);
        replaceByBytes("second", path, PrivateFile);
        QCOMPARE(contentOf(path), QByteArray("second"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"data.dat"});
    }

    void filesUnderALongPathAreReplaced()
    {
        const QTemporaryDir folder;
        const QString deep = longFolder(folder.path());
        makeFolder(deep);
        const QString path = deep + QStringLiteral("/data.dat");
        QVERIFY(!isPresent(path));
        replaceByBytes("first", path, PrivateFile);
        replaceByBytes("second", path, PublicFile);
        QVERIFY(isPresent(path));
        QCOMPARE(contentOf(path), QByteArray("second"));
        keepAlso(path, deep + QStringLiteral("/copy"), PrivateFile);
        QVERIFY(isSameFile(path, deep + QStringLiteral("/copy")));
        removeFile(path);
        QVERIFY(!isPresent(path));
    }

    void aReplacementWaitsForAProgramThatLooksAtTheFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("data.dat"));
        replaceByBytes("first", path, PrivateFile);
        SystemHandle scanner = openExisting(path, GENERIC_READ, FILE_SHARE_READ);
        std::thread end([&scanner] {
            std::this_thread::sleep_for(150ms);
            scanner.reset();
        });
        replaceByBytes("second", path, PrivateFile);
        end.join();
        QCOMPARE(contentOf(path), QByteArray("second"));
    }

    void aProgramThatKeepsTheFileOpenIsToldOf()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("data.dat"));
        replaceByBytes("first", path, PrivateFile);
        const SystemHandle other = openExisting(path, GENERIC_READ, FILE_SHARE_READ);
        QString why;
        try {
            replaceByBytes("second", path, PrivateFile);
        } catch (const FileError& error) {
            why = error.why();
        }
        QCOMPARE(why, QStringLiteral("another program is using it"));
        QCOMPARE(contentOf(path), QByteArray("first"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"data.dat"});
    }

    void errorsOfTheSystemHaveWords()
    {
        QCOMPARE(FileError::reason(systemError(ERROR_DISK_FULL)), QStringLiteral("the disk is full"));
        const QTemporaryDir folder;
        QFile missing(folder.filePath(QStringLiteral("none/data.dat")));
        QVERIFY(!missing.open(QIODevice::ReadOnly));
        QCOMPARE(FileError::reason(missing), QStringLiteral("the file or its folder does not exist"));
    }

    void soundsOverlapAndTheLastOneIsTold()
    {
        const QTemporaryDir folder;
        const QString wave = folder.filePath(QStringLiteral("a short wave.wav"));
        replaceByBytes(shortWave(), wave, PublicFile);
        const QString text = folder.filePath(QStringLiteral("no wave.wav"));
        replaceByBytes("text", text, PublicFile);
        const Modules modules(folder.path(), {});
        const std::unique_ptr<WaveBackend> sounds = makeWaveBackend(modules);
        int ends = 0;
        sounds->onDone = [&ends] {
            ++ends;
        };
        sounds->play(text);
        sounds->play(folder.filePath(QStringLiteral("none.wav")));
        sounds->play(folder.path());
        sounds->play(wave);
        sounds->play(wave);
        QTRY_COMPARE_WITH_TIMEOUT(ends, 1, 10000);
        sounds->play(wave);
        sounds->stopAll();
        QTest::qWait(500);
        QCOMPARE(ends, 1);
    }
};

AMBERTASK_TEST_MAIN(WindowsMeansTest)
#include "tst_windows_means.moc"

#include "reliability/FaultyDisk.h"
#include "reliability/PowerCut.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

/// The model of the disk that the other tests rely on.
class TestPowerCut : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { m_folder = std::make_unique<QTemporaryDir>(); }

    void whatWasNotFlushedIsLost();
    void aFlushedFileIsThereWhenItsFolderIsFlushedToo();
    void aRemovedFileComesBackUntilItsFolderIsFlushed();
    void aRenamedFileReplacesTheOtherWholeOrNotAtAll();
    void aSecondNameLeadsToTheSameFile();
    void ofSectorsThatWereNotFlushedAnyMaySurvive();
    void aFaultMeetsTheCallItIsPlannedFor();
    void aFullDiskTakesWhatStillFits();

private:
    std::string path(const char* name) const { return m_folder->filePath(QLatin1String(name)).toStdString(); }
    void write(const char* name, const std::string& bytes, bool flushes) const
    {
        const int handle = open(path(name).c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
        QCOMPARE(::write(handle, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        if (flushes) {
            fsync(handle);
        }
        close(handle);
    }
    void flushFolder() const
    {
        const int handle = open(m_folder->path().toUtf8().constData(), O_RDONLY | O_DIRECTORY);
        fsync(handle);
        close(handle);
    }
    /// What is left of `file` when the power fails after `action`; "none" when it is gone.
    template <typename Action>
    std::string left(const char* file, Survives data, Survives names, Action action, unsigned seed = 1)
    {
        FaultyDisk disk(m_folder->path().toStdString());
        disk.watch({});
        action();
        disk.stopWatching();
        PowerCut power(disk.history().start);
        for (const DiskEvent& event : disk.history().events) {
            power.apply(event);
        }
        std::mt19937 chance(seed);
        const DiskImage image = power.survivors(data, names, chance);
        const auto found = image.find(file);
        return found == image.end() ? "none" : found->second.value_or("folder");
    }

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
};

void TestPowerCut::whatWasNotFlushedIsLost()
{
    const auto action = [this] {
        write("a", "text", false);
    };
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing, action), "none");
    QCOMPARE(left("a", Survives::Nothing, Survives::Everything, action), "text");
    write("b", "", false);
    const auto refill = [this] {
        write("b", "text", false);
    };
    QCOMPARE(left("b", Survives::Nothing, Survives::Everything, refill), "");
    QCOMPARE(left("b", Survives::Everything, Survives::Nothing, refill), "text");
}

void TestPowerCut::aFlushedFileIsThereWhenItsFolderIsFlushedToo()
{
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing, [this] { write("a", "text", true); }), "none");
    QCOMPARE(left("c", Survives::Nothing, Survives::Nothing,
                 [this] {
                     write("c", "text", true);
                     flushFolder();
                 }),
        "text");
}

void TestPowerCut::aRemovedFileComesBackUntilItsFolderIsFlushed()
{
    write("a", "text", true);
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing, [this] { unlink(path("a").c_str()); }), "text");
    write("a", "text", true);
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing,
                 [this] {
                     unlink(path("a").c_str());
                     flushFolder();
                 }),
        "none");
}

void TestPowerCut::aRenamedFileReplacesTheOtherWholeOrNotAtAll()
{
    write("a", "old", true);
    const auto replace = [this] {
        write("b", "new", true);
        rename(path("b").c_str(), path("a").c_str());
    };
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing, replace), "old");
    QCOMPARE(left("a", Survives::Nothing, Survives::Everything, replace), "new");
    QCOMPARE(left("b", Survives::Nothing, Survives::Everything, replace), "none");
    write("a", "old", true);
    QCOMPARE(left("a", Survives::Nothing, Survives::Everything,
                 [this] {
                     write("b", "new", false);
                     rename(path("b").c_str(), path("a").c_str());
                 }),
        "");
}

void TestPowerCut::aSecondNameLeadsToTheSameFile()
{
    const auto begin = [this] {
        QFile::remove(m_folder->filePath(QStringLiteral("b")));
        write("a", "old", true);
        write("c", "else", true);
    };
    const auto action = [this] {
        QCOMPARE(link(path("a").c_str(), path("b").c_str()), 0);
        write("b", "new", true);
        QCOMPARE(rename(path("c").c_str(), path("a").c_str()), 0);
    };
    begin();
    QCOMPARE(left("b", Survives::Nothing, Survives::Everything, action), "new");
    begin();
    QCOMPARE(left("a", Survives::Nothing, Survives::Everything, action), "else");
    begin();
    QCOMPARE(left("a", Survives::Nothing, Survives::Nothing, action), "new");
    begin();
    QCOMPARE(left("b", Survives::Nothing, Survives::Nothing,
                 [this] { QCOMPARE(link(path("a").c_str(), path("b").c_str()), 0); }),
        "none");
}

void TestPowerCut::ofSectorsThatWereNotFlushedAnyMaySurvive()
{
    write("a", std::string(2048, 'o'), true);
    std::set<std::string> kinds;
    for (unsigned seed = 0; seed < 64; ++seed) {
        const std::string content = left(
            "a", Survives::Some, Survives::Some,
            [this] {
                const int handle = open(path("a").c_str(), O_WRONLY);
                QCOMPARE(pwrite(handle, std::string(1024, 'n').data(), 1024, 0), 1024);
                close(handle);
            },
            seed);
        QCOMPARE(content.size(), std::size_t(2048));
        kinds.insert({content[0], content[511], content[512], content[1023], content[1024]});
        write("a", std::string(2048, 'o'), true);
    }
    QCOMPARE(kinds, (std::set<std::string>{"ooooo", "nnooo", "oonno", "nnnno"}));
}

void TestPowerCut::aFaultMeetsTheCallItIsPlannedFor()
{
    FaultyDisk disk(m_folder->path().toStdString());
    disk.watch({2, EIO, FaultyDisk::Lasting::Once});
    const int handle = open(path("f").c_str(), O_CREAT | O_WRONLY, 0600);
    const ssize_t first = ::write(handle, "x", 1);
    const int error = errno;
    const ssize_t second = ::write(handle, "x", 1);
    close(handle);
    disk.stopWatching();
    QCOMPARE(first, -1);
    QCOMPARE(error, EIO);
    QCOMPARE(second, 1);
    QVERIFY(disk.hasRefused());
    QCOMPARE(disk.calls().size(), std::size_t(4));
}

void TestPowerCut::aFullDiskTakesWhatStillFits()
{
    FaultyDisk disk(m_folder->path().toStdString());
    disk.watch({2, ENOSPC, FaultyDisk::Lasting::ForThisKind});
    const int handle = open(path("g").c_str(), O_CREAT | O_WRONLY, 0600);
    const ssize_t first = ::write(handle, "abcdef", 6);
    const ssize_t second = ::write(handle, "def", 3);
    close(handle);
    disk.stopWatching();
    QCOMPARE(first, 3);
    QCOMPARE(second, -1);
    QCOMPARE(bytesOf(m_folder->filePath(QStringLiteral("g"))), QByteArray("abc"));
}

AMBERTASK_TEST_MAIN(TestPowerCut)
#include "tst_power_cut.moc"

#include "support/CaughtError.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

class TestFileReplace : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aCopyHasEveryByte_data();
    void aCopyHasEveryByte();
    void aNewCopyNeverReplaces();
    void aCopyHasThePermissionsAskedFor();
    void replacingLeavesNothingBeside();
    void replacingAFolderFails();
    void replacingFollowsALink();
    void whatIsNoFileIsNotCopied();
    void anEmptyNameIsRefused();
    void aFailureNamesTheFile();
    void aSecondNameKeepsTheContent();
    void aSecondNameMayBeGivenAgain();
    void linksAndSecondNamesAreTheSameFile();
    void aPrivateFileIsPrivateWhateverTheMask_data();
    void aPrivateFileIsPrivateWhateverTheMask();
    void bytesReplaceAFile();
    void whatADeadProcessLeftGoesWithTheNextReplacement();
    void theUnfinishedFileOfAnotherProcessStays();
    void otherHiddenFilesStay();
    void aMissingFileIsAsGoodAsRemoved();
    void foldersAreMadeWithThoseAboveThem();
    void foldersArePrivateWhateverTheMaskIs();
    void anErrorOfTheDiskIsNotTakenForAMissingFile();

private:
    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            QTest::qFail(qPrintable(file.errorString()), __FILE__, __LINE__);
        }
        return file.fileName();
    }
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
};

void TestFileReplace::aCopyHasEveryByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros") << QByteArray(17, '\0');
    QTest::newRow("one chunk") << QByteArray(1024 * 1024, 'c');
    QTest::newRow("several chunks") << QByteArray(3'145'733, 'c');
}

void TestFileReplace::aCopyHasEveryByte()
{
    QFETCH(const QByteArray, bytes);
    const QString source = write(QStringLiteral("source"), bytes);
    replaceByCopy(source, path(QStringLiteral("target")), PrivateFile);
    QVERIFY(contentOf(path(QStringLiteral("target"))) == bytes);
}

void TestFileReplace::aNewCopyNeverReplaces()
{
    const QString source = write(QStringLiteral("source"), "new");
    const QString target = write(QStringLiteral("target"), "old");
    QVERIFY(caught<FileError>([&] { copyToNewFile(source, target, PrivateFile); }).has_value());
    QCOMPARE(contentOf(target), QByteArray("old"));
}

void TestFileReplace::aCopyHasThePermissionsAskedFor()
{
    const QString source = write(QStringLiteral("source"), "x");
    const mode_t mask = umask(0022);
    copyToNewFile(source, path(QStringLiteral("private")), PrivateFile);
    copyToNewFile(source, path(QStringLiteral("public")), PublicFile);
    umask(mask);
    struct stat status {
    };
    QCOMPARE(stat(QFile::encodeName(path(QStringLiteral("private"))).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0600);
    QCOMPARE(stat(QFile::encodeName(path(QStringLiteral("public"))).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0644);
}

void TestFileReplace::replacingLeavesNothingBeside()
{
    const QString source = write(QStringLiteral("source"), "new");
    const QString target = write(QStringLiteral("target"), "an old and longer content");
    replaceByCopy(source, target, PrivateFile);
    QCOMPARE(contentOf(target), QByteArray("new"));
    QCOMPARE(files(), QStringList({QStringLiteral("source"), QStringLiteral("target")}));
}

void TestFileReplace::replacingAFolderFails()
{
    const QString source = write(QStringLiteral("source"), "new");
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("target")));
    QVERIFY(caught<FileError>([&] {
        replaceByCopy(source, path(QStringLiteral("target")), PrivateFile);
    }).has_value());
    QCOMPARE(files(), QStringList({QStringLiteral("source"), QStringLiteral("target")}));
}

void TestFileReplace::replacingFollowsALink()
{
    const QString source = write(QStringLiteral("source"), "new");
    const QString real = write(QStringLiteral("real"), "old");
    const QString link = path(QStringLiteral("target"));
    QVERIFY(QFile::link(real, link));
    replaceByCopy(source, link, PrivateFile);
    QCOMPARE(contentOf(real), QByteArray("new"));
    QVERIFY(QFileInfo(link).isSymLink());
}

void TestFileReplace::whatIsNoFileIsNotCopied()
{
    const QString pipe = path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& source : {pipe, m_folder->path(), QStringLiteral("/dev/zero"), QString()}) {
        QVERIFY(caught<FileError>([&] {
            replaceByCopy(source, path(QStringLiteral("target")), PrivateFile);
        }).has_value());
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 0);
}

void TestFileReplace::anEmptyNameIsRefused()
{
    const QString source = write(QStringLiteral("source"), "x");
    QVERIFY(caught<FileError>([&] { replaceByCopy(source, {}, PrivateFile); }).has_value());
}

void TestFileReplace::aFailureNamesTheFile()
{
    const auto error = caught<FileError>([] {
        copyToNewFile(QStringLiteral("/nowhere/at all"), QStringLiteral("/nowhere/either"), PrivateFile);
    });
    QVERIFY(error.has_value());
    QVERIFY2(error->text().startsWith(QStringLiteral("\"/nowhere/at all\": ")), qPrintable(error->text()));
}

void TestFileReplace::aSecondNameKeepsTheContent()
{
    const QString file = write(QStringLiteral("file"), "old");
    const QString kept = write(QStringLiteral("kept"), "older");
    keepAlso(file, kept, PrivateFile);
    moveOver(write(QStringLiteral("new"), "new"), file);
    QCOMPARE(contentOf(kept), QByteArray("old"));
    QCOMPARE(contentOf(file), QByteArray("new"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
        QStringList({QStringLiteral("file"), QStringLiteral("kept")}));
}

void TestFileReplace::aSecondNameMayBeGivenAgain()
{
    const QString file = write(QStringLiteral("file"), "old");
    const QString kept = path(QStringLiteral("kept"));
    keepAlso(file, kept, PrivateFile);
    keepAlso(file, kept, PrivateFile);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
        QStringList({QStringLiteral("file"), QStringLiteral("kept")}));
}

void TestFileReplace::linksAndSecondNamesAreTheSameFile()
{
    const QString file = write(QStringLiteral("file"), "x");
    const QString other = write(QStringLiteral("other"), "x");
    const QString link = path(QStringLiteral("link"));
    QVERIFY(QFile::link(file, link));
    QVERIFY(isSameFile(file, link));
    QVERIFY(isSameFile(file, path(QStringLiteral("./file"))));
    QVERIFY(!isSameFile(file, other));
    QVERIFY(!isSameFile(file, path(QStringLiteral("missing"))));
    QVERIFY(!isSameFile(path(QStringLiteral("missing")), path(QStringLiteral("missing"))));
}

void TestFileReplace::aPrivateFileIsPrivateWhateverTheMask_data()
{
    QTest::addColumn<int>("mask");
    for (const int mask : {0, 022, 077, 0277, 0777}) {
        QTest::addRow("%o", mask) << mask;
    }
}

void TestFileReplace::aPrivateFileIsPrivateWhateverTheMask()
{
    QFETCH(const int, mask);
    const QString source = write(QStringLiteral("source"), "x");
    write(QStringLiteral("replaced"), "old");
    QVERIFY(QFile::setPermissions(source, QFileDevice::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("replaced")), QFileDevice::Permissions(0x7777)));
    const mode_t before = umask(static_cast<mode_t>(mask));
    copyToNewFile(source, path(QStringLiteral("copied")), PrivateFile);
    replaceByCopy(source, path(QStringLiteral("replaced")), PrivateFile);
    replaceByBytes("x", path(QStringLiteral("bytes")), PrivateFile);
    umask(before);
    for (const char* name : {"copied", "replaced", "bytes"}) {
        struct stat status {
        };
        QCOMPARE(stat(QFile::encodeName(path(QLatin1String(name))).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0600);
    }
}

void TestFileReplace::bytesReplaceAFile()
{
    const QString target = write(QStringLiteral("target"), "an old and longer content");
    replaceByBytes("new", target, PublicFile);
    QCOMPARE(contentOf(target), QByteArray("new"));
    QCOMPARE(files(), QStringList(QStringLiteral("target")));
}

void TestFileReplace::whatADeadProcessLeftGoesWithTheNextReplacement()
{
    write(QStringLiteral(".ambertask-0123456789abcdef0123456789abcdef"), "half");
    write(QStringLiteral(".ambertask-fedcba98765432100123456789abcdef"), "");
    replaceByBytes("x", path(QStringLiteral("target")), PrivateFile);
    QCOMPARE(files(), QStringList(QStringLiteral("target")));
}

void TestFileReplace::theUnfinishedFileOfAnotherProcessStays()
{
    const QString unfinished = write(QStringLiteral(".ambertask-0123456789abcdef0123456789abcdef"), "half");
    const int handle = open(QFile::encodeName(unfinished).constData(), O_RDWR | O_CLOEXEC);
    QCOMPARE(flock(handle, LOCK_EX), 0);
    replaceByBytes("x", path(QStringLiteral("target")), PrivateFile);
    QVERIFY(QFile::exists(unfinished));
    close(handle);
    replaceByBytes("x", path(QStringLiteral("target")), PrivateFile);
    QVERIFY(!QFile::exists(unfinished));
}

void TestFileReplace::otherHiddenFilesStay()
{
    const QStringList others{QStringLiteral(".ambertask-0123456789abcdef0123456789abcde"),
        QStringLiteral(".ambertask-0123456789abcdef0123456789abcdefx"), QStringLiteral(".ambertask-notes")};
    for (const QString& name : others) {
        write(name, "x");
    }
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral(".ambertask-ffffffffffffffffffffffffffffffff")));
    replaceByBytes("x", path(QStringLiteral("target")), PrivateFile);
    QCOMPARE(files().size(), others.size() + 2);
}

void TestFileReplace::aMissingFileIsAsGoodAsRemoved()
{
    const QString file = write(QStringLiteral("file"), "x");
    removeFile(file);
    QVERIFY(!QFile::exists(file));
    removeFile(file);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(caught<FileError>([&] { removeFile(path(QStringLiteral("folder"))); }).has_value());
}

void TestFileReplace::foldersArePrivateWhateverTheMaskIs()
{
    const mode_t before = umask(0);
    makeFolder(path(QStringLiteral("a/b")));
    umask(before);
    for (const char* folder : {"a", "a/b"}) {
        QCOMPARE(QFileInfo(path(QLatin1String(folder))).permissions()
                & ~(QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser),
            PrivateFolder);
    }
}

void TestFileReplace::foldersAreMadeWithThoseAboveThem()
{
    makeFolder(path(QStringLiteral("a/b/c")));
    makeFolder(path(QStringLiteral("a/b/c")));
    QVERIFY(QFileInfo(path(QStringLiteral("a/b/c"))).isDir());
    write(QStringLiteral("file"), "x");
    QVERIFY(caught<FileError>([&] { makeFolder(path(QStringLiteral("file/d"))); }).has_value());
}

void TestFileReplace::anErrorOfTheDiskIsNotTakenForAMissingFile()
{
    const QString file = write(QStringLiteral("file"), "x");
    QVERIFY(isPresent(file));
    QVERIFY(!isPresent(path(QStringLiteral("missing"))));
    QVERIFY(!isPresent(path(QStringLiteral("file/below"))));
    QVERIFY(caught<FileError>([&] { isPresent(path(QString(300, u'x'))); }).has_value());
}

AMBERTASK_TEST_MAIN(TestFileReplace)
#include "tst_filereplace.moc"

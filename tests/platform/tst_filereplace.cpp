#include "platform/FileReplace.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

namespace
{

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

} // namespace

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

AMBERTASK_TEST_MAIN(TestFileReplace)
#include "tst_filereplace.moc"

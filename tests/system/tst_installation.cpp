#include "support/TestMain.h"
#include "system/Installation.h"
#include "system/ProgramFolder.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const QString UserData = QStringLiteral("/home/somebody/.local/share");

} // namespace

class InstallationTest : public TestCase
{
    Q_OBJECT

private slots:
    void aProgramThatShipsNothingElsewhereLivesInItsOwnFolder()
    {
        const Installation found = installationOf(path("Ambertask/Ambertask"));
        QCOMPARE(found.shippedFolder, QString());
        QCOMPARE(found.moduleFolder, path("Ambertask"));
        QCOMPARE(programFolderOf(found, UserData), path("Ambertask"));
    }

    void aProgramBelowAPrefixHasAFolderOfTheUsersOwn()
    {
        makeFolder("usr/share/ambertask");
        const Installation found = installationOf(path("usr/bin/Ambertask"));
        QCOMPARE(found.executable, path("usr/bin/Ambertask"));
        QCOMPARE(found.shippedFolder, path("usr/share/ambertask"));
        QVERIFY2(found.moduleFolder.startsWith(path("usr/lib")), qPrintable(found.moduleFolder));
        QCOMPARE(programFolderOf(found, UserData), UserData + QStringLiteral("/Ambertask"));
    }

    void aPrefixMayHaveBlanksAndLettersOfAnyAlphabet()
    {
        makeFolder("mein Büro/opt/share/ambertask");
        const Installation found = installationOf(path("mein Büro/opt/bin/Ambertask"));
        QCOMPARE(found.shippedFolder, path("mein Büro/opt/share/ambertask"));
    }

    void aPrefixThatHoldsTheDataIsItsProgramFolder()
    {
        makeFolder("stick/Ambertask/share/ambertask");
        makeFile("stick/Ambertask/share/ambertask/data.dat");
        QCOMPARE(programFolderOf(installationOf(path("stick/Ambertask/bin/Ambertask")), UserData),
            UserData + QStringLiteral("/Ambertask"));
        makeFile("stick/Ambertask/data.dat");
        const Installation found = installationOf(path("stick/Ambertask/bin/Ambertask"));
        QCOMPARE(found.shippedFolder, path("stick/Ambertask/share/ambertask"));
        QCOMPARE(programFolderOf(found, UserData), path("stick/Ambertask"));
    }

    void aFolderOfThatNameIsNoData()
    {
        makeFolder("odd/share/ambertask");
        makeFolder("odd/data.dat");
        QCOMPARE(installationOf(path("odd/bin/Ambertask")).programFolder, QString());
    }

    void aProgramFolderBesideAFolderOfShippedFilesStaysWhatItIs()
    {
        makeFolder("usr/share/ambertask");
        const Installation found = installationOf(path("usr/Ambertask/Ambertask"));
        QCOMPARE(found.shippedFolder, QString());
        QCOMPARE(programFolderOf(found, UserData), path("usr/Ambertask"));
    }

    void aFileInThePlaceOfThatFolderIsNone()
    {
        makeFolder("local/share");
        makeFile("local/share/ambertask");
        QCOMPARE(installationOf(path("local/bin/Ambertask")).shippedFolder, QString());
    }

    void theRunningProgramIsFound()
    {
        QCOMPARE(runningInstallation().executable, QCoreApplication::applicationFilePath());
        QCOMPARE(runningInstallation().moduleFolder, QCoreApplication::applicationDirPath());
    }

    void theUsersDataLieWhereTheEnvironmentSays()
    {
        qputenv("XDG_DATA_HOME", "/some/where/");
        QCOMPARE(userDataFolder(), QStringLiteral("/some/where"));
    }

    void aRelativeFolderInTheEnvironmentDoesNotCount()
    {
        const QString usual = QDir::homePath() + QStringLiteral("/.local/share");
        qputenv("XDG_DATA_HOME", "some/where");
        QCOMPARE(userDataFolder(), usual);
        qputenv("XDG_DATA_HOME", "");
        QCOMPARE(userDataFolder(), usual);
    }

private:
    QString path(const char* name) const { return m_place.filePath(QString::fromUtf8(name)); }
    void makeFolder(const char* name) const { QVERIFY(QDir().mkpath(path(name))); }
    void makeFile(const char* name) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir m_place;
};

AMBERTASK_TEST_MAIN(InstallationTest)
#include "tst_installation.moc"

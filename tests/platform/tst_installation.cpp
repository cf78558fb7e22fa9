#include "platform/Installation.h"
#include "platform/ProgramFolder.h"
#include "support/TestMain.h"

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
    void aProgramWithoutATemplateLivesInItsOwnFolder()
    {
        const Installation found = installationOf(path("Ambertask/Ambertask"));
        QCOMPARE(found.templateFolder, QString());
        QCOMPARE(found.moduleFolder, path("Ambertask"));
        QCOMPARE(programFolderOf(found, UserData), path("Ambertask"));
    }

    void aProgramBelowAPrefixHasAFolderOfTheUsersOwn()
    {
        makeFolder("usr/share/ambertask");
        const Installation found = installationOf(path("usr/bin/Ambertask"));
        QCOMPARE(found.executable, path("usr/bin/Ambertask"));
        QCOMPARE(found.templateFolder, path("usr/share/ambertask"));
        QVERIFY2(found.moduleFolder.startsWith(path("usr/lib")), qPrintable(found.moduleFolder));
        QCOMPARE(programFolderOf(found, UserData), UserData + QStringLiteral("/Ambertask"));
    }

    void aPrefixMayHaveBlanksAndLettersOfAnyAlphabet()
    {
        makeFolder("mein Büro/opt/share/ambertask");
        const Installation found = installationOf(path("mein Büro/opt/bin/Ambertask"));
        QCOMPARE(found.templateFolder, path("mein Büro/opt/share/ambertask"));
    }

    void anArchiveUnpackedBesideATemplateStaysInItsFolder()
    {
        makeFolder("usr/share/ambertask");
        const Installation found = installationOf(path("usr/Ambertask/Ambertask"));
        QCOMPARE(found.templateFolder, QString());
        QCOMPARE(programFolderOf(found, UserData), path("usr/Ambertask"));
    }

    void aFileInThePlaceOfTheTemplateIsNone()
    {
        makeFolder("local/share");
        QFile file(path("local/share/ambertask"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(installationOf(path("local/bin/Ambertask")).templateFolder, QString());
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

    QTemporaryDir m_place;
};

AMBERTASK_TEST_MAIN(InstallationTest)
#include "tst_installation.moc"

#include "InstalledProgram.h"
#include "support/TestMain.h"

#include <QDateTime>

/// What a later version does with the program folder that an earlier one has made.
class ProgramFolderRefreshedTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { startForTheFirstTime(); }
    void cleanup() { startForTheFirstTime(); }

    void newSkinsAndSoundsAndHelpAreBrought()
    {
        m_program->ship("Skins/Midnight.skf", "midnight 2");
        m_program->ship("sounds/chime.wav", "chime 2");
        m_program->ship("words/de.qm", "german 2");
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Midnight.skf"), QByteArray("midnight 2"));
        QCOMPARE(m_program->read("sounds/chime.wav"), QByteArray("chime 2"));
        QCOMPARE(m_program->read("words/de.qm"), QByteArray("german 2"));
        QCOMPARE(m_program->read("help.chm"), QByteArray("help 2"));
    }

    void whatTheUserDidNotChangeIsReplaced()
    {
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 2"));
        m_program->ship("Skins/Aqua.skf", "aqua 3");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 3"));
    }

    void theDataAreNeverTouched()
    {
        write("data.dat", "all my tasks");
        m_program->write(m_program->filePath("usr/share/ambertask/data.dat"), "the data of version 2");
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->read("data.dat"), QByteArray("all my tasks"));
        QCOMPARE(m_program->read("help.chm"), QByteArray("help 2"));
    }

    void aShippedSkinThatTheUserChangedStaysThroughAllVersions()
    {
        write("Skins/Aqua.skf", "aqua as I like it");
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua as I like it"));
        m_program->ship("Skins/Aqua.skf", "aqua 3");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua as I like it"));
    }

    void aSkinOfTheUsersOwnWhoseNameALaterVersionTakesStays()
    {
        write("Skins/Midnight.skf", "my midnight");
        m_program->ship("Skins/Midnight.skf", "midnight 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Midnight.skf"), QByteArray("my midnight"));
    }

    void otherFilesOfTheUsersStay()
    {
        write("Skins/Mine.skf", "mine");
        write("custom icons/icon1.gif", "picture");
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Mine.skf"), QByteArray("mine"));
        QCOMPARE(m_program->read("custom icons/icon1.gif"), QByteArray("picture"));
    }

    void aDamagedHelpFileIsReplaced()
    {
        write("help.chm", "garbage");
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->read("help.chm"), QByteArray("help 2"));
    }

    void whatALaterVersionShipsNoMoreStays()
    {
        m_program->drop("Skins/Aqua.skf");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
    }

    void aShippedFileThatIsGoneComesBackWithTheNextVersion()
    {
        QVERIFY(QFile::remove(m_program->inFolder("sounds/bell.wav")));
        m_program->start();
        QCOMPARE(m_program->read("sounds/bell.wav"), QByteArray("not there"));
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->read("sounds/bell.wav"), QByteArray("bell 1"));
    }

    void theSameVersionWritesNothing()
    {
        write("Skins/Aqua.skf", "aqua as I like it");
        const auto entries = [this] {
            QMap<QString, QDateTime> times;
            QDirIterator all(m_program->folder(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                QDirIterator::Subdirectories);
            while (all.hasNext()) {
                const QString path = all.next();
                times.insert(path, QFileInfo(path).lastModified());
            }
            return times;
        };
        const auto before = entries();
        m_program->start();
        QCOMPARE(entries(), before);
    }

    void anEarlierVersionBringsItsFilesBack()
    {
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        m_program->ship("Skins/Aqua.skf", "aqua 1");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
    }

    void whatCouldNotBeBroughtIsTriedAgainAtTheNextStart()
    {
        QVERIFY(QFile::remove(m_program->inFolder("help.chm")));
        QVERIFY(QDir().mkpath(m_program->inFolder("help.chm/in the way")));
        m_program->ship("help.chm", "help 2");
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 2"));
        QVERIFY(QDir(m_program->inFolder("help.chm")).removeRecursively());
        m_program->start();
        QCOMPARE(m_program->read("help.chm"), QByteArray("help 2"));
        // What was brought meanwhile does not pass for the user's own.
        m_program->ship("Skins/Aqua.skf", "aqua 3");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 3"));
    }

    void aFolderThatCannotBeWrittenToIsUsedAsItIs()
    {
        QVERIFY(QDir(m_program->inFolder("Skins")).removeRecursively());
        write("Skins", "a file where a folder should be");
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins"), QByteArray("a file where a folder should be"));
        QCOMPARE(m_program->read("data.dat"), QByteArray("the data as shipped"));
    }

    void theLinkFollowsTheExecutable()
    {
        Installation moved = m_program->installation();
        moved.executable = m_program->filePath("opt/bin/Ambertask");
        refreshProgramFolder(moved, m_program->folder());
        QCOMPARE(QFile::symLinkTarget(m_program->inFolder("Ambertask")), moved.executable);
        QCOMPARE(m_program->namesIn(m_program->folder()).size(), 7);
    }

    void aLostLinkComesBack()
    {
        QVERIFY(QFile::remove(m_program->inFolder("Ambertask")));
        m_program->start();
        QCOMPARE(
            QFile::symLinkTarget(m_program->inFolder("Ambertask")), m_program->installation().executable);
    }

    void aProgramThatTheUserPutThereStays()
    {
        QVERIFY(QFile::remove(m_program->inFolder("Ambertask")));
        write("Ambertask", "a copy from an archive");
        m_program->start();
        QCOMPARE(m_program->read("Ambertask"), QByteArray("a copy from an archive"));
    }

private:
    void startForTheFirstTime()
    {
        m_program = std::make_unique<InstalledProgram>();
        m_program->start();
    }
    void write(const char* name, const QByteArray& content) const
    {
        m_program->write(m_program->inFolder(name), content);
    }

    std::unique_ptr<InstalledProgram> m_program;
};

AMBERTASK_TEST_MAIN(ProgramFolderRefreshedTest)
#include "tst_programfolder_refreshed.moc"

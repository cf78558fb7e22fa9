#include "InstalledProgram.h"
#include "support/TestMain.h"

#include <memory>

/// What the program does with a folder that version 1.1.0 has filled with copies of what is shipped.
class FormerCopiesTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { makeAsBefore(); }
    void cleanup() { makeAsBefore(); }

    void unchangedCopiesGoWithTheirListAndWhatIsTheUsersStays()
    {
        m_program->writeOwn("data.dat", "all my tasks");
        m_program->writeOwn("custom icons/icon1.gif", "picture");
        m_program->start();
        QCOMPARE(m_program->namesInFolder(), QStringLiteral("Ambertask Skins custom icons data.dat sounds"));
        QCOMPARE(m_program->read("data.dat"), QByteArray("all my tasks"));
        QCOMPARE(m_program->read("custom icons/icon1.gif"), QByteArray("picture"));
    }

    void copiesOfAnEarlierVersionGo()
    {
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->ship("help.chm", "help 2");
        m_program->start();
        QCOMPARE(m_program->namesInFolder(), QStringLiteral("Ambertask Skins custom icons data.dat sounds"));
        QCOMPARE(contentOf(m_program->files().find(QStringLiteral("help.chm"))), "help 2");
    }

    void copiesOfAnInterruptedUpgradeGo()
    {
        m_program->writeOwn("Skins/Aqua.skf", "aqua 2");
        m_program->ship("Skins/Aqua.skf", "aqua 2");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("cannot be read"));
    }

    void aChangedOneStaysAndIsUsed()
    {
        m_program->writeOwn("Skins/Aqua.skf", "aqua as I like it");
        m_program->start();
        QCOMPARE(m_program->namesInFolder(), QStringLiteral("Ambertask Skins custom icons data.dat sounds"));
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua as I like it"));
        QCOMPARE(
            m_program->files().find(QStringLiteral("Skins/Aqua.skf")), m_program->inFolder("Skins/Aqua.skf"));
    }

    void whatTheUserAddedStays()
    {
        m_program->writeOwn("Skins/Mine.skf", "mine");
        m_program->writeOwn("sounds/.hidden.wav", "mine");
        m_program->start();
        QCOMPARE(m_program->namesIn(m_program->inFolder("Skins")), QStringList{QStringLiteral("Mine.skf")});
        QCOMPARE(
            m_program->namesIn(m_program->inFolder("sounds")), QStringList{QStringLiteral(".hidden.wav")});
    }

    void aCopyOfWhatIsNoLongerShippedStays()
    {
        m_program->drop("Skins/Aqua.skf");
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
        QCOMPARE(m_program->read("help.chm"), QByteArray("cannot be read"));
    }

    void aLinkStaysWithWhatItLeadsTo()
    {
        const QString elsewhere = m_program->filePath("home/aqua.skf");
        QVERIFY(QFile::rename(m_program->inFolder("Skins/Aqua.skf"), elsewhere));
        QVERIFY(QFile::link(elsewhere, m_program->inFolder("Skins/Aqua.skf")));
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
    }

    void aFolderThatIsALinkStaysWithWhatItLeadsTo()
    {
        QVERIFY(QDir(m_program->inFolder("Skins")).removeRecursively());
        QVERIFY(QFile::link(m_program->shippedPath("Skins"), m_program->inFolder("Skins")));
        m_program->start();
        QVERIFY(QFile::exists(m_program->shippedPath("Skins/Aqua.skf")));
        QVERIFY(QFileInfo(m_program->inFolder("Skins")).isSymLink());
    }

    void aProgramFolderElsewhereIsCleanedThroughItsLink()
    {
        const QString elsewhere = m_program->filePath("disk");
        QVERIFY(QFile::rename(m_program->folder(), elsewhere));
        QVERIFY(QFile::link(elsewhere, m_program->folder()));
        m_program->start();
        QCOMPARE(m_program->namesInFolder(), QStringLiteral("Ambertask Skins custom icons data.dat sounds"));
    }

    void withoutTheListNothingIsRemoved()
    {
        QVERIFY(QFile::remove(m_program->inFolder("shipped.sha256")));
        m_program->start();
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
    }

    void aFolderThatHoldsTheProgramIsNotCleaned()
    {
        Installation unpacked = m_program->installation();
        unpacked.shippedFolder.clear();
        removeFormerCopies(unpacked, m_program->folder());
        QCOMPARE(m_program->read("Skins/Aqua.skf"), QByteArray("aqua 1"));
    }

    void anInvalidListTouchesNothingElse()
    {
        m_program->writeOwn("shipped.sha256", "no list\n\n" + QByteArray(70, '/') + "\n");
        m_program->start();
        QCOMPARE(m_program->namesInFolder(),
            QStringLiteral("Ambertask Skins custom icons data.dat help.chm sounds"));
    }

private:
    void makeAsBefore()
    {
        m_program = std::make_unique<InstalledProgram>();
        m_program->startAsBefore();
    }

    std::unique_ptr<InstalledProgram> m_program;
};

AMBERTASK_TEST_MAIN(FormerCopiesTest)
#include "tst_former_copies.moc"

#include "InstalledProgram.h"
#include "support/TestMain.h"

/// Where an installed program looks up what it ships.
class ProgramFilesTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsShippedIsFoundWhereItIsShipped()
    {
        QCOMPARE(m_files.find(QStringLiteral("Skins/Aqua.skf")), m_program.shippedPath("Skins/Aqua.skf"));
        QCOMPARE(m_files.find(QStringLiteral("Skins/Gone.skf")), m_program.shippedPath("Skins/Gone.skf"));
    }

    void theUsersFolderComesFirst()
    {
        m_program.writeOwn("Skins/Lemon.skf", "my lemon");
        m_program.ship("Skins/Lemon.skf", "lemon");
        QCOMPARE(m_files.find(QStringLiteral("Skins/Lemon.skf")), m_program.inFolder("Skins/Lemon.skf"));
        QCOMPARE(m_files.folders(QStringLiteral("Skins")),
            QStringList({m_program.inFolder("Skins"), m_program.shippedPath("Skins")}));
    }

    void aProgramInItsOwnFolderHasOnlyThat()
    {
        const ProgramFiles files(m_program.folder());
        const QString skins = m_program.inFolder("Skins");
        QCOMPARE(files.folders(QStringLiteral("Skins")), QStringList{skins});
        QCOMPARE(files.shipped(QStringLiteral("Skins")), skins);
        QCOMPARE(files.find(QStringLiteral("Skins")), skins);
    }

    void aSoundIsTheOneThatWasChosen()
    {
        const QString chosen = m_program.filePath("home/sounds/bell.wav");
        writeText(chosen, "my bell");
        QCOMPARE(m_files.sound(chosen), chosen);
    }

    void aSoundThatIsGoneFromAFolderOfSoundsIsLookedUp()
    {
        // The copy in the user's folder, one below a prefix that has moved, one of another user.
        for (const QString& gone :
            {m_program.inFolder("sounds/bell.wav"), QStringLiteral("/gone/share/ambertask/sounds/bell.wav"),
                QStringLiteral("/gone/home/.local/share/Ambertask/sounds/bell.wav")}) {
            QCOMPARE(m_files.sound(gone), m_program.shippedPath("sounds/bell.wav"));
        }
    }

    void anyOtherSoundThatIsGoneStaysGone()
    {
        for (const QString& gone : {QStringLiteral("/gone/bell.wav"), QStringLiteral("/gone/sounds/horn.wav"),
                 QStringLiteral("bell.wav"), QString()}) {
            QCOMPARE(m_files.sound(gone), gone);
        }
    }

private:
    const InstalledProgram m_program;
    const ProgramFiles m_files = m_program.files();
};

AMBERTASK_TEST_MAIN(ProgramFilesTest)
#include "tst_program_files.moc"

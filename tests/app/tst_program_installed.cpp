#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tests/app/ProgramFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QTemporaryDir>

using namespace std::chrono_literals;

/// The program folder holds what is the user's; skins, sounds and help lie where they are installed.
class ProgramInstalledTest : public TestCase
{
    Q_OBJECT

private slots:
    void init() { m_shipped.emplace(); }

    void itWearsAnInstalledSkin()
    {
        ProgramFixture f(m_shipped->path());
        QVERIFY(QDir().rename(f.database.folder() + QStringLiteral("/Skins"), shipped("Skins")));
        f.start();
        QVERIFY(!qApp->styleSheet().isEmpty());
        QCOMPARE(f.control<QComboBox>(f.main(), "cmbSkins")->currentText(), QStringLiteral("Aqua"));
    }

    void itShowsTheInstalledHelp()
    {
        ProgramFixture f(m_shipped->path());
        f.start();
        f.menu("mnuHelp")->trigger();
        QCOMPARE(f.helpWindow->shownFile, shipped("Ambertask1.1.chm"));
    }

    void aSoundThatWasChosenInTheProgramFolderIsTheInstalledOne()
    {
        ProgramFixture f(m_shipped->path());
        QVERIFY(QDir().mkpath(shipped("sounds")));
        QFile bell(shipped("sounds/bell.wav"));
        QVERIFY(bell.open(QIODevice::WriteOnly));
        aTask(f.database)
            .remindingAt(f.database.clock().now() - 1min)
            .sounding(f.database.folder() + QStringLiteral("/sounds/bell.wav"))
            .add();
        f.start();
        f.program.loadDialogs();
        QCOMPARE(f.played, QStringList{bell.fileName()});
    }

private:
    QString shipped(const char* name) const { return m_shipped->filePath(QLatin1String(name)); }

    std::optional<QTemporaryDir> m_shipped;
};

AMBERTASK_TEST_MAIN(ProgramInstalledTest)
#include "tst_program_installed.moc"

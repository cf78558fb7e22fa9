#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/ProgramFixture.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QTabWidget>
#include <QWindow>

namespace
{

frmAbout* aboutBox()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* about = qobject_cast<frmAbout*>(window)) {
            return about;
        }
    }
    return nullptr;
}

} // namespace

/// Where the program opens its help and its about box from.
class ProgramHelpTest : public TestCase
{
    Q_OBJECT

private slots:
    void theHelpFileLiesInTheProgramFolder()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuHelp")->trigger();
        QCOMPARE(f.helpWindow->shownFile, f.database.folder() + QStringLiteral("/Ambertask1.1.chm"));
    }

    void theHelpMenuOpensTheContents()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuHelp")->trigger();
        QCOMPARE(f.helpLog, QStringList(QStringLiteral("contents")));
    }

    void f1PressedInTheWindowOpensTheContents()
    {
        ProgramFixture f;
        f.start();
        QApplication::setActiveWindow(&f.main());
        QTest::keyClick(f.grid(f.main()), Qt::Key_F1);
        QCOMPARE(f.helpLog, QStringList(QStringLiteral("contents")));
        QTest::keyClick(f.grid(f.main()), Qt::Key_F2);
        QCOMPARE(f.helpLog.size(), 1);
    }

    void theHelpButtonOfEachPageOpensItsTopic_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("tasks") << 0 << QByteArray("btnHelpTasks");
        QTest::newRow("categories") << 1 << QByteArray("btnHelpCategories");
        QTest::newRow("settings") << 2 << QByteArray("btnHelpSettings");
        QTest::newRow("maintenance") << 3 << QByteArray("btnHelpMaintenance");
    }

    void theHelpButtonOfEachPageOpensItsTopic()
    {
        QFETCH(const int, page);
        QFETCH(const QByteArray, button);
        ProgramFixture f;
        f.start();
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(page);
        f.press(f.main(), button.constData());
        QCOMPARE(f.helpLog, QStringList(QStringLiteral("context %1").arg(page)));
    }

    void theHelpButtonOfTheAlertOpensItsTopic()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.program.alerts().show();
        f.press(f.program.alerts(), "btnHelp");
        QCOMPARE(f.helpLog, QStringList(QStringLiteral("context 4")));
    }

    void quittingTheProgramClosesAnOpenViewer()
    {
        QPointer<RecordedHelpWindow> window;
        QStringList log;
        {
            ProgramFixture f;
            f.start();
            f.menu("mnuHelp")->trigger();
            window = f.helpWindow;
            QVERIFY(window->isVisible());
            f.program.end();
            f.program.unload();
            QVERIFY(window.isNull());
            log = f.helpLog;
        }
        QCOMPARE(log.last(), QStringLiteral("destroyed"));
    }

    void aboutShowsTheBoxOverTheMainWindow()
    {
        ProgramFixture f;
        f.start();
        QVERIFY(aboutBox() == nullptr);
        f.menu("mnuAbout")->trigger();
        const frmAbout* about = aboutBox();
        QVERIFY(about != nullptr);
        QVERIFY(about->isVisible());
        QVERIFY(!isTopmost(about));
        QVERIFY(about->windowHandle()->transientParent() == f.main().windowHandle());
    }

    void aboutChosenTwiceShowsTheOneBox()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuAbout")->trigger();
        const frmAbout* about = aboutBox();
        f.menu("mnuAbout")->trigger();
        QVERIFY(aboutBox() == about);
    }

    void theBoxIsTopmostWhileTheProgramIsAlwaysOnTop()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.start();
        f.menu("mnuAbout")->trigger();
        QVERIFY(isTopmost(aboutBox()));
    }

    void theBoxOpensWhileTheMainWindowIsHidden()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        f.menu("mnuAbout")->trigger();
        QVERIFY(aboutBox()->isVisible());
        QVERIFY(!f.main().isVisible());
    }

    void okUnloadsTheBoxAndAboutLoadsAnother()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuAbout")->trigger();
        const QPointer<frmAbout> first = aboutBox();
        f.press(*first, "cmdOK");
        QTRY_VERIFY(first.isNull());
        f.menu("mnuAbout")->trigger();
        QVERIFY(aboutBox()->isVisible());
    }

    void theBoxIsUnloadedAfterTheAlertAndBeforeTheMainWindow()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.menu("mnuAbout")->trigger();
        QStringList order;
        const auto note = [&order](const QWidget& window) {
            connect(&window, &QObject::destroyed, &window,
                [&order, name = window.objectName()] { order.append(name); });
        };
        note(f.program.categoryDetails());
        note(f.program.taskDetails());
        note(f.program.alerts());
        note(*aboutBox());
        note(f.main());
        f.program.end();
        f.program.unload();
        QCOMPARE(
            order.join(u' '), QStringLiteral("frmCategoryDetails frmTaskDetails frmAlerts frmAbout frmMain"));
    }
};

AMBERTASK_TEST_MAIN(ProgramHelpTest)
#include "tst_program_help.moc"

#include "help/HTMLHelpViewer.h"
#include "support/RecordedHelpWindow.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "widgets/WindowPlacement.h"

#include <QLibrary>
#include <QPointer>
#include <QTest>

namespace
{

struct Viewer {
    Viewer()
        : viewer(
            [this](HelpHost& asked) {
                ++made;
                host = &asked;
                window = new RecordedHelpWindow(log);
                return window;
            },
            services.services)
    {
        viewer.SetHelpFile(QStringLiteral("/program/Ambertask1.1.chm"));
    }

    TestServices services;
    QStringList log;
    int made = 0;
    HelpHost* host = nullptr;
    QPointer<RecordedHelpWindow> window;
    HTMLHelpViewer viewer;
};

} // namespace

class HelpViewerTest : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsLoadedBeforeTheFirstCall()
    {
        const Viewer help;
        QCOMPARE(help.made, 0);
        QVERIFY(help.viewer.viewerWindow() == nullptr);
        QCOMPARE(help.viewer.HelpFile(), QStringLiteral("/program/Ambertask1.1.chm"));
    }

    void eachOperationShowsItsPartOfTheHelpFile()
    {
        Viewer help;
        help.viewer.Show();
        help.viewer.ShowContents();
        help.viewer.ShowIndex();
        help.viewer.ShowSearch();
        help.viewer.ShowContext(3);
        QCOMPARE(help.log.join(u','), QStringLiteral("topic,contents,index,search,context 3"));
        QCOMPARE(help.window->shownFile, QStringLiteral("/program/Ambertask1.1.chm"));
        QVERIFY(help.window->isVisible());
    }

    void pressingTwoHelpButtonsInTurnReusesTheOneWindow()
    {
        Viewer help;
        help.viewer.ShowContext(0);
        const HelpWindow* first = help.viewer.viewerWindow();
        help.viewer.ShowContext(1);
        QCOMPARE(help.made, 1);
        QVERIFY(first != nullptr);
        QVERIFY(help.viewer.viewerWindow() == first);
        QCOMPARE(help.log.last(), QStringLiteral("context 1"));
    }

    void aWindowThatTheUserClosedComesBack()
    {
        Viewer help;
        help.viewer.ShowContents();
        help.window->close();
        QVERIFY(!help.window->isVisible());
        help.viewer.ShowContents();
        QVERIFY(help.window->isVisible());
        QCOMPARE(help.made, 1);
    }

    void everyCallShowsTheFileThatIsSetThen()
    {
        Viewer help;
        help.viewer.Show();
        help.viewer.SetHelpFile(QStringLiteral("/other.chm"));
        help.viewer.Show();
        QCOMPARE(help.window->shownFile, QStringLiteral("/other.chm"));
    }

    void unloadClosesTheWindow()
    {
        Viewer help;
        help.viewer.Show();
        help.viewer.Unload();
        QVERIFY(help.window.isNull());
        QVERIFY(help.viewer.viewerWindow() == nullptr);
    }

    void unloadWithNoViewerOpenDoesNothing()
    {
        Viewer help;
        help.viewer.Unload();
        help.viewer.Unload();
        QCOMPARE(help.made, 0);
        help.viewer.Show();
        QVERIFY(help.window->isVisible());
    }

    void theViewerClosesWithTheObject()
    {
        QStringList log;
        const TestServices services;
        {
            HTMLHelpViewer viewer(
                [&log](HelpHost&) { return new RecordedHelpWindow(log); }, services.services);
            viewer.Show();
        }
        QCOMPARE(log.last(), QStringLiteral("destroyed"));
    }

    void theWindowStaysOnTopWhileTheSettingSaysSo()
    {
        Viewer help;
        help.services.alwaysOnTop = true;
        help.viewer.Show();
        QVERIFY(isTopmost(help.window));
        help.services.alwaysOnTop = false;
        help.viewer.Show();
        QVERIFY(!isTopmost(help.window));
    }

    void linksToTheWebAskTheDesktop()
    {
        Viewer help;
        help.viewer.Show();
        help.host->openWebPage(QStringLiteral("https://www.ambertask.example/support.htm"));
        QCOMPARE(help.services.shell.webPages,
            QStringList(QStringLiteral("https://www.ambertask.example/support.htm")));
    }

    void theFileToPrintToIsAskedForWhileTheCheckerWaits()
    {
        Viewer help;
        help.viewer.Show();
        help.services.dialogs.expectSave(
            QStringLiteral("/documents/mine.pdf"), [&help](const FileDialogRequest& request) {
                QVERIFY(!help.services.checkerTimer.enabled);
                QCOMPARE(request.fileName, QStringLiteral("Keys.pdf"));
                QCOMPARE(request.filter, QStringLiteral("PDF Files (*.pdf)|*.pdf"));
                QVERIFY(request.promptBeforeOverwriting);
            });
        QCOMPARE(help.host->choosePdfFile(help.window, QStringLiteral("Keys.pdf")),
            QStringLiteral("/documents/mine.pdf"));
        QVERIFY(help.services.checkerTimer.enabled);
    }

    void questionsAndFailuresOfTheWindowAreMessages()
    {
        Viewer help;
        help.viewer.Show();
        help.services.dialogs.expectAsk(QStringLiteral("Write it?"), true);
        QVERIFY(help.host->ask(help.window, QStringLiteral("Write it?")));
        help.services.dialogs.expectTell(MessageBoxes::Icon::Exclamation, QStringLiteral("No room."));
        help.host->tellFailure(help.window, QStringLiteral("No room."));
    }

    void aMissingModuleIsToldAndTheProgramGoesOn()
    {
        TestServices services;
        HTMLHelpViewer viewer([](HelpHost&) -> HelpWindow* { return nullptr; }, services.services);
        services.dialogs.expectTell(MessageBoxes::Icon::Exclamation,
            QStringLiteral("The help window is missing from this installation."));
        viewer.ShowContents();
        QVERIFY(services.dialogs.allUsed());
        viewer.Unload();
    }

    void theModuleOfThisBuildMakesAWindow()
    {
        QLibrary module(QStringLiteral(AMBERTASK_HELP_MODULE));
        using Make = HelpWindow* (*)(HelpHost&);
        const auto make = reinterpret_cast<Make>(module.resolve("ambertaskMakeHelpWindow"));
        QVERIFY2(make != nullptr, qPrintable(module.errorString()));
        const TestServices services;
        HTMLHelpViewer viewer([make](HelpHost& host) { return make(host); }, services.services);
        viewer.SetHelpFile(QStringLiteral(AMBERTASK_HELP_FILE));
        viewer.ShowContext(0);
        QVERIFY(viewer.viewerWindow()->isVisible());
        QCOMPARE(viewer.viewerWindow()->windowTitle(), QStringLiteral("Ambertask Help"));
    }
};

AMBERTASK_TEST_MAIN(HelpViewerTest)
#include "tst_help_viewer.moc"

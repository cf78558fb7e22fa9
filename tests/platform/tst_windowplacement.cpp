#include "platform/WindowPlacement.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace
{

/// Counts how often a window was hidden or shown.
class Watched : public QWidget
{
public:
    int hides = 0;
    int shows = 0;

protected:
    void hideEvent(QHideEvent*) override { ++hides; }
    void showEvent(QShowEvent*) override { ++shows; }
};

} // namespace

class WindowPlacementTest : public TestCase
{
    Q_OBJECT

private slots:
    void aWindowShownUnaskedIsActiveWhereTheProgramIs()
    {
        QWidget first;
        first.show();
        first.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&first));
        QWidget second;
        showUnasked(&second);
        QVERIFY(!second.testAttribute(Qt::WA_ShowWithoutActivating));
        QVERIFY(!second.windowHandle()->property("_q_showWithoutActivating").toBool());
        QVERIFY(second.isVisible());
    }

    void aWindowShownUnaskedLeavesTheKeysToAnotherProgram()
    {
        // Focus that the last window had goes with its end.
        QTRY_VERIFY(QGuiApplication::focusWindow() == nullptr);
        QWidget window;
        showUnasked(&window);
        QVERIFY(window.windowHandle()->property("_q_showWithoutActivating").toBool());
        QVERIFY(window.isVisible());
    }

    void aMinimizedWindowShownUnaskedIsRestored()
    {
        QWidget window;
        window.showMinimized();
        showUnasked(&window);
        QVERIFY(window.isVisible());
        QVERIFY(!window.isMinimized());
    }

    void aVisibleWindowBecomesTopmostWithoutBeingShownAgainOrMoved()
    {
        Watched window;
        window.setGeometry(40, 50, 200, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect place = window.geometry();
        makeTopmost(&window);
        QVERIFY(isTopmost(&window));
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        leaveTopmost(&window);
        QVERIFY(!isTopmost(&window));
        QVERIFY(!window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(window.hides, 0);
        QCOMPARE(window.shows, 1);
        QCOMPARE(window.geometry(), place);
    }

    void aHiddenWindowStaysHiddenAndComesUpTopmost()
    {
        QWidget window;
        makeTopmost(&window);
        QVERIFY(!window.isVisible());
        window.show();
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    }

    void anOwnerIsTheTransientParentAndNotTheParent()
    {
        QWidget owner;
        QWidget dialog(nullptr, Qt::Dialog);
        showOwned(&dialog, &owner);
        QVERIFY(dialog.isVisible());
        QVERIFY(!owner.isVisible());
        QCOMPARE(dialog.parentWidget(), nullptr);
        QCOMPARE(dialog.windowHandle()->transientParent(), owner.windowHandle());
    }

    void bringingAHiddenWindowToTheFrontDoesNotShowIt()
    {
        QWidget window;
        bringToFront(&window);
        QVERIFY(!window.isVisible());
    }
};

AMBERTASK_TEST_MAIN(WindowPlacementTest)
#include "tst_windowplacement.moc"

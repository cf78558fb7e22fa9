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

#include "support/TestMain.h"
#include "widgets/WindowPlacement.h"

#include <QScreen>
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
    void aFirstWindowIsCentred()
    {
        const QRect screen(0, 0, 1024, 640);
        QCOMPARE(firstPlace(QSize(400, 300), screen, screen), QRect(312, 170, 400, 300));
        QCOMPARE(firstPlace(QSize(200, 100), QRect(500, 200, 300, 200), screen), QRect(550, 250, 200, 100));
    }

    void aFirstWindowIsNeverLargerThanTheScreenNorBesideIt()
    {
        const QRect screen(100, 40, 1024, 600);
        QCOMPARE(firstPlace(QSize(2000, 300), screen, screen), QRect(100, 190, 1024, 300));
        QCOMPARE(firstPlace(QSize(2000, 2000), QRect(0, 0, 10, 10), screen), screen);
        // Over an owner at the edge.
        QCOMPARE(firstPlace(QSize(400, 300), QRect(50, 0, 100, 100), screen), QRect(100, 40, 400, 300));
        QCOMPARE(firstPlace(QSize(400, 300), QRect(1100, 600, 100, 100), screen), QRect(724, 340, 400, 300));
    }

    void aWindowThatCanBeReachedStaysWhereItWas()
    {
        const QList<QRect> screens{QRect(0, 0, 1024, 640), QRect(1024, 0, 800, 600)};
        for (const QRect& frame : {QRect(0, 0, 300, 200), QRect(940, 500, 400, 400),
                 QRect(1700, 10, 400, 200), QRect(-300, 100, 400, 200), QRect(0, 0, 1024, 900)}) {
            QCOMPARE(nextPlace(frame, 30, screens), frame);
        }
    }

    void aWindowOutsideEveryScreenComesBackToTheNearest()
    {
        const QList<QRect> screens{QRect(0, 0, 1024, 640), QRect(1024, 0, 800, 600)};
        QCOMPARE(nextPlace(QRect(2000, 100, 400, 300), 30, screens), QRect(1424, 100, 400, 300));
        QCOMPARE(nextPlace(QRect(-900, 100, 400, 300), 30, screens), QRect(0, 100, 400, 300));
        QCOMPARE(nextPlace(QRect(100, 5000, 400, 300), 30, screens), QRect(100, 340, 400, 300));
    }

    void aTitleBarThatCannotBeTakenHoldOfCountsAsOutside()
    {
        const QList<QRect> screen{QRect(0, 0, 1024, 640)};
        // Above the upper edge, and but a sliver beside the left one.
        QCOMPARE(nextPlace(QRect(100, -10, 400, 300), 30, screen), QRect(100, 0, 400, 300));
        QCOMPARE(nextPlace(QRect(-350, 100, 400, 300), 30, screen), QRect(0, 100, 400, 300));
        // A window narrower than the handle is asked for as a whole.
        QCOMPARE(nextPlace(QRect(-10, 100, 40, 300), 30, screen), QRect(0, 100, 40, 300));
    }

    void aWindowFromALargerScreenIsMadeToFitWhenItComesBack()
    {
        const QList<QRect> screen{QRect(0, 0, 1024, 640)};
        QCOMPARE(nextPlace(QRect(2000, 100, 1600, 900), 30, screen), QRect(0, 0, 1024, 640));
    }

    void aWindowComesUpInTheMiddleOfItsScreen()
    {
        QWidget window;
        window.resize(300, 200);
        showOwned(&window, nullptr);
        const QRect screen = window.screen()->availableGeometry();
        const QPoint off = window.frameGeometry().center() - screen.center();
        // As exactly as the frame is known beforehand.
        QVERIFY2(off.manhattanLength() <= 32, qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y())));
        QCOMPARE(window.size(), QSize(300, 200));
    }

    void aDialogComesUpOverItsOwner()
    {
        QWidget owner;
        owner.setGeometry(200, 300, 300, 200);
        owner.show();
        QWidget dialog(nullptr, Qt::Dialog);
        dialog.resize(200, 100);
        showOwned(&dialog, &owner);
        QVERIFY((dialog.frameGeometry().center() - owner.frameGeometry().center()).manhattanLength() <= 32);
    }

    void theOwnerGetsTheKeyboardOfAWindowThatIsClosed()
    {
        QWidget owner;
        owner.show();
        QWidget dialog(nullptr, Qt::Dialog);
        showOwned(&dialog, &owner);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.close();
        QVERIFY(QTest::qWaitForWindowActive(&owner));
    }

    void aWindowThatIsClosedWithoutTheKeyboardTakesItFromNobody()
    {
        QWidget owner;
        owner.show();
        QWidget dialog(nullptr, Qt::Dialog);
        showOwned(&dialog, &owner);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        dialog.close();
        QCoreApplication::processEvents();
        QVERIFY(other.isActiveWindow());
    }

    void aWindowComesUpAgainWhereTheUserLeftIt()
    {
        QWidget window;
        window.resize(300, 200);
        showOwned(&window, nullptr);
        window.setGeometry(40, 60, 350, 250);
        const QRect left = window.geometry();
        for (int i = 0; i < 3; ++i) {
            window.hide();
            showOwned(&window, nullptr);
            QCOMPARE(window.geometry(), left);
        }
    }

    void aWindowThatIsMovedWhileItIsHiddenComesUpWhereItWasSeen()
    {
        QWidget window;
        window.resize(300, 200);
        showOwned(&window, nullptr);
        const QRect seen = window.geometry();
        window.hide();
        // As some window managers do.
        window.move(seen.topLeft() - QPoint(10, 20));
        showOwned(&window, nullptr);
        QCOMPARE(window.geometry(), seen);
    }

    void aHiddenWindowThatNoScreenShowsComesBack()
    {
        QWidget window;
        window.resize(300, 200);
        showOwned(&window, nullptr);
        window.setGeometry(5000, 60, 350, 250);
        window.hide();
        showOwned(&window, nullptr);
        QVERIFY(window.screen()->availableGeometry().contains(window.geometry()));
        QCOMPARE(window.size(), QSize(350, 250));
    }

    void aWindowThatWantsMoreThanTheScreenHasGetsWhatThereIs()
    {
        QWidget window;
        window.resize(3000, 3000);
        showOwned(&window, nullptr);
        QVERIFY(window.screen()->availableGeometry().contains(window.geometry()));
    }

    void aWindowThatGrowsByItselfStaysOnItsScreen()
    {
        QWidget window;
        window.resize(200, 100);
        showOwned(&window, nullptr);
        const QRect area = window.screen()->availableGeometry();
        const QPoint corner = area.bottomRight() - QPoint(300, 200);
        window.move(corner);
        window.setMinimumSize(280, 100);
        QCOMPARE(window.pos(), corner);
        window.setMinimumSize(500, 400);
        QCOMPARE(window.size(), QSize(500, 400));
        QCOMPARE(window.frameGeometry().bottomRight(), area.bottomRight());
    }

    void aWindowThatTheUserHasHalfOffTheScreenStaysThereWhenItGrows()
    {
        QWidget window;
        window.resize(200, 100);
        showOwned(&window, nullptr);
        const QPoint edge(window.screen()->availableGeometry().right() - 100, 50);
        window.move(edge);
        window.setMinimumSize(500, 400);
        QCOMPARE(window.pos(), edge);
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

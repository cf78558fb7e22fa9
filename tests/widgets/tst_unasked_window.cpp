#include "support/TestMain.h"
#include "widgets/UnaskedWindow.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace
{

/// A window that comes up by itself, with a button.
struct Unasked : QWidget {
    bool isToGetTheKeyboard() const
    {
        return !testAttribute(Qt::WA_ShowWithoutActivating)
            && !windowHandle()->property("_q_showWithoutActivating").toBool();
    }
    QPushButton button{QStringLiteral("Press"), this};
    UnaskedWindow unasked{this};
};

} // namespace

class UnaskedWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void itLeavesTheKeyboardToTheWindowOfTheProgramThatHasIt()
    {
        QWidget first;
        first.show();
        first.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&first));
        Unasked window;
        window.unasked.comeUp();
        QVERIFY(window.isVisible());
        QVERIFY(!window.isToGetTheKeyboard());
    }

    void itLeavesTheKeyboardToAnotherProgram()
    {
        // Focus that the last window had goes with its end.
        QTRY_VERIFY(QGuiApplication::focusWindow() == nullptr);
        Unasked window;
        window.unasked.comeUp();
        QVERIFY(window.isVisible());
        QVERIFY(!window.isToGetTheKeyboard());
    }

    void theUserActivatesItAtOnce()
    {
        Unasked window;
        window.unasked.activate();
        QVERIFY(!window.isVisible());
        window.unasked.comeUp();
        window.unasked.activate();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void aClickIntoItActivatesItAtOnce()
    {
        QWidget other;
        other.show();
        Unasked window;
        window.unasked.comeUp();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void whatCanBeSeenAlreadyKeepsTheKeyboardThatItHas()
    {
        Unasked window;
        window.unasked.comeUp();
        window.unasked.activate();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.unasked.comeUp();
        QVERIFY(window.isActiveWindow());
    }

    void aMinimizedWindowIsRestored()
    {
        Unasked window;
        window.showMinimized();
        window.unasked.comeUp();
        QVERIFY(window.isVisible());
        QVERIFY(!window.isMinimized());
        QVERIFY(!window.isToGetTheKeyboard());
    }

    void afterABoxItsButtonsRestOnceMore()
    {
        QWidget owner;
        owner.show();
        QDialog box(&owner);
        box.setModal(true);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        Unasked window;
        window.unasked.comeUp();
        auto* rest = window.findChild<QTimer*>(QStringLiteral("tmrKeyRest"));
        QCoreApplication::processEvents();
        rest->stop();
        box.close();
        QVERIFY(rest->isActive());
        // Only the one under which it came up.
        rest->stop();
        box.show();
        box.close();
        QVERIFY(!rest->isActive());
    }
};

AMBERTASK_TEST_MAIN(UnaskedWindowTest)
#include "tst_unasked_window.moc"

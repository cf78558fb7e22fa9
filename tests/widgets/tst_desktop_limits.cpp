#include "support/TestMain.h"
#include "widgets/DesktopLimits.h"

#include <QTest>

class DesktopLimitsTest : public TestCase
{
    Q_OBJECT

private slots:
    void waylandAloneKeepsItsWindowsPlacesToItself_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<bool>("byDesktop");
        QTest::newRow("Wayland") << "wayland" << true;
        QTest::newRow("Wayland, as the variable may name it") << "wayland-egl" << true;
        QTest::newRow("X11, on Wayland too") << "xcb" << false;
        QTest::newRow("Windows") << "windows" << false;
        QTest::newRow("nothing to see") << "offscreen" << false;
        QTest::newRow("no name") << "" << false;
    }

    void waylandAloneKeepsItsWindowsPlacesToItself()
    {
        QFETCH(QString, platform);
        QTEST(desktopPlacesWindows(platform), "byDesktop");
    }
};

AMBERTASK_TEST_MAIN(DesktopLimitsTest)
#include "tst_desktop_limits.moc"

#include "categories/frmCategoryDetails.h"
#include "support/TestMain.h"
#include "tests/app/EveryWindow.h"
#include "tests/app/Fit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <array>
#include <tuple>

namespace
{

/// Whether there is another colour at `outer` than at `inner`, within a pixel or two.
bool differs(const QImage& picture, QPointF outer, QPointF inner)
{
    const QRgb ground = picture.pixel(inner.toPoint());
    const QPointF step = (inner - outer) / 4;
    for (int i = 0; i < 3; ++i) {
        if (picture.pixel((outer + i * step).toPoint()) != ground) {
            return true;
        }
    }
    return false;
}

/// The sides of the frame around `place`, a rectangle in a window, that are missing from the window's
/// picture.
QString missingSides(const QImage& picture, const QRect& place)
{
    const qreal scale = picture.devicePixelRatio();
    const QRectF frame(
        place.x() * scale, place.y() * scale, place.width() * scale - 1, place.height() * scale - 1);
    // Deep enough to lie on the ground inside, not so deep as to reach what stands there.
    const qreal depth = 1.4 * scale + 1;
    const QPointF middle = frame.center();
    const std::array sides{std::tuple{"left ", QPointF(frame.left(), middle.y()), QPointF(depth, 0)},
        std::tuple{"right ", QPointF(frame.right(), middle.y()), QPointF(-depth, 0)},
        std::tuple{"top ", QPointF(middle.x(), frame.top()), QPointF(0, depth)},
        std::tuple{"bottom ", QPointF(middle.x(), frame.bottom()), QPointF(0, -depth)}};
    QString missing;
    for (const auto& [name, edge, inwards] : sides) {
        if (!differs(picture, edge, edge + inwards)) {
            missing += QLatin1String(name);
        }
    }
    return missing;
}

} // namespace

/// Every window on the screen that the environment describes, in every skin, with usual and large letters,
/// from left to right and from right to left.
class WindowsOnScreensTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { m_usual = QApplication::font(); }
    void cleanup();

    void aCutOffControlIsFound();
    void overlappingControlsAreFound();

    void everySideOfAFrameIsDrawn();

    void eightRowsAreSeenWhenTheFiltersAreFolded();

    void everythingFits_data();
    void everythingFits();

private:
    QFont m_usual;
};

void WindowsOnScreensTest::cleanup()
{
    QApplication::setFont(m_usual);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void WindowsOnScreensTest::aCutOffControlIsFound()
{
    QWidget window;
    QLabel label(QStringLiteral("Waiting on someone else"), &window);
    label.resize(label.sizeHint());
    window.resize(300, 100);
    window.show();
    QCOMPARE(misfits(window), QStringList());
    label.resize(label.width() - 20, label.height());
    QCOMPARE(misfits(window).size(), 1);
    label.resize(label.sizeHint());
    label.move(200, 0);
    QVERIFY(misfits(window).value(0).contains(QStringLiteral("is cut off by")));
}

void WindowsOnScreensTest::overlappingControlsAreFound()
{
    QWidget window;
    QLabel one(QStringLiteral("one"), &window);
    QLabel other(QStringLiteral("other"), &window);
    other.move(5, 5);
    window.resize(300, 100);
    window.show();
    QVERIFY(misfits(window).value(0).endsWith(QStringLiteral("overlap")));
    other.move(100, 5);
    QCOMPARE(misfits(window), QStringList());
}

void WindowsOnScreensTest::everySideOfAFrameIsDrawn()
{
    SkinnedProgram program(QStringLiteral("Aqua"));
    program.press(program.main(), "btnAddCat");
    frmCategoryDetails& dialog = program.program.categoryDetails();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCoreApplication::processEvents();
    const QImage shown = dialog.grab().toImage();
    for (const char* name : {"picIcons", "picCustomIcon", "imgIcon0"}) {
        const auto* framed = program.control<QWidget>(dialog, name);
        const QRect place(framed->mapTo(&dialog, QPoint()), framed->size());
        QCOMPARE(missingSides(shown, place), QString());
    }
    QCOMPARE(missingSides(shown,
                 QRect(program.control<QWidget>(dialog, "imgIcon5")->mapTo(&dialog, QPoint()),
                     program.control<QWidget>(dialog, "imgIcon5")->size())),
        QStringLiteral("left right top bottom "));
}

void WindowsOnScreensTest::eightRowsAreSeenWhenTheFiltersAreFolded()
{
    SkinnedProgram program(QStringLiteral("Aqua"));
    program.main().resize(800, 600);
    const GridView& grid = *program.grid(program.main());
    const auto rowsSeen = [&grid] {
        settleWindows();
        return grid.viewport()->height() / grid.verticalHeader()->defaultSectionSize();
    };
    const int unfolded = rowsSeen();
    program.control<QToolButton>(program.main(), "btnFold")->click();
    QCOMPARE(program.main().size(), QSize(800, 600));
    QVERIFY2(rowsSeen() >= 8 && rowsSeen() >= unfolded + 4,
        qPrintable(QStringLiteral("%1 rows, unfolded %2").arg(rowsSeen()).arg(unfolded)));
}

void WindowsOnScreensTest::everythingFits_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<double>("letters");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const QString& skin : shippedSkins()) {
        QTest::addRow("%s", qPrintable(skin)) << skin << 1.0 << Qt::LeftToRight;
        QTest::addRow("%s, from right to left", qPrintable(skin)) << skin << 1.0 << Qt::RightToLeft;
        QTest::addRow("%s, large letters", qPrintable(skin)) << skin << 2.0 << Qt::LeftToRight;
        QTest::addRow("%s, large letters from right to left", qPrintable(skin))
            << skin << 2.0 << Qt::RightToLeft;
    }
}

void WindowsOnScreensTest::everythingFits()
{
    QFETCH(const QString, skin);
    QFETCH(const double, letters);
    QFETCH(const Qt::LayoutDirection, direction);
    QFont font = m_usual;
    font.setPointSizeF(font.pointSizeF() * letters);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(direction);
    SkinnedProgram program(skin);
    int seen = 0;
    visitEveryWindow(program, [&seen](const QString& name, QWidget& window) {
        ++seen;
        const QStringList faults = misfits(window);
        QVERIFY2(faults.isEmpty(), qPrintable(name + u'\n' + faults.join(u'\n')));
    });
    QCOMPARE(seen, 34);
}

AMBERTASK_TEST_MAIN(WindowsOnScreensTest)
#include "tst_windows_on_screens.moc"

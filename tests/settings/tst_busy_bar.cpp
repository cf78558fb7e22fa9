#include "settings/SkinProgress.h"
#include "settings/SkinStyle.h"
#include "support/TestMain.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

constexpr QRect Bar(10, 5, 300, 20);

/// The columns of the picture that are not white any more.
int drawnColumns(const QImage& image)
{
    int columns = 0;
    for (int x = 0; x < image.width(); ++x) {
        columns += image.pixelColor(x, image.height() / 2) != Qt::white ? 1 : 0;
    }
    return columns;
}

} // namespace

/// A bar of unknown length: it is to be seen that it moves.
class BusyBarTest : public TestCase
{
    Q_OBJECT

private slots:
    void thePartGoesToAndFroWithinTheBar()
    {
        QCOMPARE(busyPart(Bar, 0ms).left(), Bar.left());
        QCOMPARE(busyPart(Bar, 1200ms).right(), Bar.right());
        QCOMPARE(busyPart(Bar, 2400ms), busyPart(Bar, 0ms));
        QCOMPARE(busyPart(Bar, 1000ms), busyPart(Bar, 1400ms));
        for (auto time = 0ms; time < 5000ms; time += 7ms) {
            QVERIFY(Bar.contains(busyPart(Bar, time)));
        }
    }

    void itMovesFromPaintingToPainting()
    {
        for (auto time = 0ms; time < 2400ms; time += 40ms) {
            QVERIFY(busyPart(Bar, time) != busyPart(Bar, time + 40ms) || time + 20ms == 1200ms);
        }
    }

    void onlyThatPartIsPainted()
    {
        QImage image(Bar.right() + 10, Bar.bottom() + 5, QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            QStyleOptionProgressBar bar;
            bar.rect = Bar;
            bar.palette = QPalette(Qt::darkBlue);
            bar.state = QStyle::State_Enabled | QStyle::State_Horizontal;
            SkinStyle().drawControl(QStyle::CE_ProgressBarContents, &bar, &painter, nullptr);
        }
        const int drawn = drawnColumns(image);
        QVERIFY2(drawn > Bar.width() / 4 && drawn < Bar.width() / 2, qPrintable(QString::number(drawn)));
    }
};

AMBERTASK_TEST_MAIN(BusyBarTest)
#include "tst_busy_bar.moc"

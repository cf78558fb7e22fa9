#include "support/Contrast.h"
#include "support/TestMain.h"
#include "widgets/BadgedIcon.h"

#include <QPainter>
#include <QTest>
#include <algorithm>

namespace
{

/// A picture of one colour in every size that a tray asks for.
QIcon plainIcon(QColor color)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
        QPixmap picture(size, size);
        picture.fill(color);
        icon.addPixmap(picture);
    }
    return icon;
}

QImage shown(const QIcon& icon, int size, qreal scale, QColor panel)
{
    QImage image(QSize(size, size) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(panel);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, size, size));
    painter.end();
    return image;
}

} // namespace

class BadgedIconTest : public TestCase
{
    Q_OBJECT

private slots:
    void theBadgeStandsOutFromIconAndPanel_data()
    {
        QTest::addColumn<QColor>("icon");
        QTest::addColumn<QColor>("panel");
        QTest::addColumn<int>("size");
        QTest::addColumn<qreal>("scale");
        for (const char* icon : {"#e39a1c", "#ffffff", "#000000", "#c62828", "transparent"}) {
            for (const char* panel : {"#ffffff", "#000000", "#808080"}) {
                for (const int size : {16, 22, 24}) {
                    for (const qreal scale : {1.0, 1.5, 2.0}) {
                        QTest::addRow("%s on %s, %d, %g", icon, panel, size, scale)
                            << QColor(icon) << QColor(panel) << size << scale;
                    }
                }
            }
        }
    }
    void theBadgeStandsOutFromIconAndPanel()
    {
        QFETCH(const QColor, icon);
        QFETCH(const QColor, panel);
        QFETCH(const int, size);
        QFETCH(const qreal, scale);
        const QImage plain = shown(plainIcon(icon), size, scale, panel);
        const QImage badged = shown(badgedIcon(plainIcon(icon)), size, scale, panel);
        // Along the dot's middle from the left edge of the icon: what was there, the rim, the dot.
        const int y = badged.height() * 7 / 10;
        double greatestStep = 1;
        int changed = 0;
        for (int x = 0; x < badged.width(); ++x) {
            changed += badged.pixel(x, y) != plain.pixel(x, y) ? 1 : 0;
            greatestStep = std::max(greatestStep, contrastOf(badged.pixel(x, y), badged.pixel(0, y)));
        }
        QVERIFY2(greatestStep >= 3, qPrintable(QString::number(greatestStep)));
        QVERIFY2(changed >= badged.width() / 3, qPrintable(QString::number(changed)));
        QCOMPARE(badged.pixel(0, 0), plain.pixel(0, 0));
    }

    void itsSizesAreThoseOfTrays()
    {
        QList<QSize> sizes = badgedIcon(plainIcon(Qt::white)).availableSizes();
        QCOMPARE(sizes.size(), 6);
        QVERIFY(!sizes.contains(QSize(128, 128)));
    }
};

AMBERTASK_TEST_MAIN(BadgedIconTest)
#include "tst_badged_icon.moc"

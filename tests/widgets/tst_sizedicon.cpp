#include "support/FullPixmapCache.h"
#include "support/TestMain.h"
#include "widgets/SizedIcon.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <array>

/// An icon whose sizes differ in colour, so that it can be told which file was read.
class SizedIconTest : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void everySizeComesFromItsOwnFile();
    void aSizeBetweenComesFromTheNextLargerFile();
    void noPictureIsEnlarged();
    void noFileIsReadBeforeItsSizeIsPainted();
    void aFileThatWasReadOnceIsNotReadAgain();
    void theSizesAreKnownWithoutReading();
    void whatIsPaintedLeavesTheCacheOfQtAlone();
    void aDisabledPictureIsGrey();
    void aWidePictureKeepsItsShape();
    void aFileOfAnotherLengthIsNoPicture();
    void whatShinesThroughKeepsItsColour();

private:
    QString fileOf(int size) const { return m_folder->filePath(QStringLiteral("%1/red.pixels").arg(size)); }
    void write(int size, Qt::GlobalColor color) const
    {
        QImage image(size, size, QImage::Format_RGBA8888_Premultiplied);
        image.fill(color);
        QVERIFY(QDir(m_folder->path()).mkpath(QString::number(size)));
        QFile file(fileOf(size));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()),
            image.sizeInBytes());
    }
    QIcon icon(int proportion = 1) const
    {
        static constexpr std::array heights{16, 32};
        return sizedIcon({QLatin1String(m_path), QLatin1String("red"), heights, proportion});
    }
    static QColor colorAt(const QIcon& icon, int size)
    {
        return icon.pixmap(QSize(size, size)).toImage().pixelColor(1, 1);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_path; ///< of the folder
};

void SizedIconTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->path().toLatin1();
    write(16, Qt::red);
    write(32, Qt::blue);
}

void SizedIconTest::everySizeComesFromItsOwnFile()
{
    QCOMPARE(colorAt(icon(), 16), QColor(Qt::red));
    QCOMPARE(colorAt(icon(), 32), QColor(Qt::blue));
}

void SizedIconTest::aSizeBetweenComesFromTheNextLargerFile()
{
    QCOMPARE(colorAt(icon(), 20), QColor(Qt::blue));
    QCOMPARE(icon().pixmap(QSize(20, 20)).size(), QSize(20, 20));
}

void SizedIconTest::noPictureIsEnlarged()
{
    QCOMPARE(icon().pixmap(QSize(200, 200)).size(), QSize(32, 32));
    QCOMPARE(icon().actualSize(QSize(200, 200)), QSize(32, 32));
}

void SizedIconTest::noFileIsReadBeforeItsSizeIsPainted()
{
    const QIcon icon = this->icon();
    write(32, Qt::green);
    QCOMPARE(colorAt(icon, 16), QColor(Qt::red));
    QFile::remove(fileOf(16));
    QImage canvas(32, 32, QImage::Format_ARGB32);
    QPainter painter(&canvas);
    icon.paint(&painter, canvas.rect());
    QCOMPARE(canvas.pixelColor(1, 1), QColor(Qt::green));
}

void SizedIconTest::aFileThatWasReadOnceIsNotReadAgain()
{
    const QIcon icon = this->icon();
    const QIcon copy = icon;
    QCOMPARE(colorAt(icon, 16), QColor(Qt::red));
    QFile::remove(fileOf(16));
    QCOMPARE(colorAt(copy, 16), QColor(Qt::red));
}

void SizedIconTest::theSizesAreKnownWithoutReading()
{
    const QIcon icon = this->icon();
    m_folder.reset();
    QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(16, 16), QSize(32, 32)}));
    QVERIFY(!icon.isNull());
}

// Qt sets a timer to clean its cache up, which wakes a program that is at rest.
void SizedIconTest::whatIsPaintedLeavesTheCacheOfQtAlone()
{
    FullPixmapCache cache;
    const QIcon icon = this->icon();
    QCOMPARE(icon.pixmap(QSize(16, 16)).size(), QSize(16, 16));
    QCOMPARE(icon.pixmap(QSize(20, 20)).size(), QSize(20, 20));
    QVERIFY(cache.isUntouched());
    icon.pixmap(QSize(20, 20), QIcon::Disabled);
    QVERIFY(!cache.isUntouched());
}

void SizedIconTest::aDisabledPictureIsGrey()
{
    const QColor color = icon().pixmap(QSize(16, 16), QIcon::Disabled).toImage().pixelColor(1, 1);
    QVERIFY2(color.saturation() < QColor(Qt::red).saturation() / 4, qPrintable(color.name()));
}

void SizedIconTest::aWidePictureKeepsItsShape()
{
    const QIcon wide = icon(3);
    QCOMPARE(wide.actualSize(QSize(30, 30)), QSize(30, 10));
}

void SizedIconTest::aFileOfAnotherLengthIsNoPicture()
{
    QVERIFY(QFile::resize(fileOf(16), 16 * 16 * 4 + 1));
    QVERIFY(icon().pixmap(QSize(16, 16)).isNull());
    QVERIFY(QFile::resize(fileOf(32), 32 * 32 * 4 - 1));
    QVERIFY(icon().pixmap(QSize(32, 32)).isNull());
}

void SizedIconTest::whatShinesThroughKeepsItsColour()
{
    QFile file(fileOf(16));
    QVERIFY(file.open(QIODevice::WriteOnly));
    // Half of red.
    file.write(QByteArray("\x80\x00\x00\x80", 4).repeated(16 * 16));
    file.close();
    QCOMPARE(colorAt(icon(), 16), QColor(255, 0, 0, 128));
}

AMBERTASK_TEST_MAIN(SizedIconTest)
#include "tst_sizedicon.moc"

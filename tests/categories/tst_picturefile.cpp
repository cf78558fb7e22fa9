#include "categories/PictureFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <sys/stat.h>

namespace
{

/// A dark left half and a light right one.
QByteArray photograph(QSize size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(QColor(40, 40, 40));
    for (int y = 0; y < size.height(); ++y) {
        const qsizetype line = image.bytesPerLine();
        std::fill_n(image.scanLine(y) + line / 2, line / 2, 0xF0);
    }
    QBuffer buffer;
    image.save(&buffer, "jpg", 50);
    return buffer.data();
}

/// A JPEG of three colours whose first scan holds one of them.
QByteArray withOneColourFirst(QByteArray bytes)
{
    constexpr qsizetype header = 14;
    return bytes.replace(bytes.indexOf("\xFF\xDA"), header, QByteArray::fromHex("ffda0008010100003f00"));
}

/// A line of what the system says of the memory of this process, in kB.
qint64 memory(const char* line)
{
    const QList<QByteArray> lines = bytesOf(QStringLiteral("/proc/self/status")).split('\n');
    const auto found = std::find_if(
        lines.cbegin(), lines.cend(), [line](const QByteArray& text) { return text.startsWith(line); });
    return found == lines.cend() ? -1 : found->split(':').last().trimmed().split(' ').first().toLongLong();
}

} // namespace

class PictureFileTest : public TestCase
{
    Q_OBJECT

private slots:
    void aSmallPictureKeepsItsSize();
    void aLargePictureIsMadeToFit();
    void aPhotographIsMadeToFit_data();
    void aPhotographIsMadeToFit();
    void aPhotographTakesLittleMemory();
    void aNarrowPictureKeepsAtLeastOnePixel();
    void theContentDecidesNotTheName();
    void theFirstPictureOfAGifIsRead();
    void whatIsNoPictureIsRefusedByName_data();
    void whatIsNoPictureIsRefusedByName();
    void aPictureCutAnywhereIsRefused_data();
    void aPictureCutAnywhereIsRefused();
    void aPipeDoesNotKeepTheProgramWaiting();
    void aFolderIsRefused();
    void aMissingFileIsRefused();
    void aFileOfMoreThan64MebibytesIsRefused();
    void aPhotographWithAFilmBehindItIsRead_data();
    void aPhotographWithAFilmBehindItIsRead();
    void aThumbnailInAPhotographIsNotItsEnd();
    void aJpegOfThousandsOfScansIsRefusedAtOnce();

private:
    QString file(const QString& name, const QByteArray& bytes) const
    {
        return writeFile(m_folder.path(), name, bytes);
    }
    /// The refusal of the picture; empty when it is accepted.
    static QString refusal(const QString& path);

    QTemporaryDir m_folder;
};

QString PictureFileTest::refusal(const QString& path)
{
    try {
        PictureFile(path).load(96);
    } catch (const RuntimeError& error) {
        return error.text();
    }
    return {};
}

void PictureFileTest::aSmallPictureKeepsItsSize()
{
    const QImage image = PictureFile(file(QStringLiteral("a.png"), pngOf(QSize(24, 24), Qt::blue))).load(96);
    QCOMPARE(image.size(), QSize(24, 24));
    QCOMPARE(image.pixelColor(12, 12), QColor(Qt::blue));
}

void PictureFileTest::aLargePictureIsMadeToFit()
{
    QCOMPARE(
        PictureFile(file(QStringLiteral("a.jpg"), jpegOf(QSize(800, 400)))).load(96).size(), QSize(96, 48));
    QCOMPARE(
        PictureFile(file(QStringLiteral("b.png"), pngOf(QSize(300, 4096)))).load(96).size(), QSize(7, 96));
}

void PictureFileTest::aPhotographIsMadeToFit_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QSize>("icon");
    QTest::newRow("of a phone") << QSize(4000, 6000) << QImage::Format_RGB32 << QSize(64, 96);
    QTest::newRow("of a camera") << QSize(6000, 4000) << QImage::Format_RGB32 << QSize(96, 64);
    QTest::newRow("of 108 million pixels")
        << QSize(12000, 9000) << QImage::Format_Grayscale8 << QSize(96, 72);
}

void PictureFileTest::aPhotographIsMadeToFit()
{
    QFETCH(const QSize, size);
    QFETCH(const QImage::Format, format);
    QFETCH(const QSize, icon);
    const QImage image = PictureFile(file(QStringLiteral("photo.jpg"), photograph(size, format))).load(96);
    QCOMPARE(image.size(), icon);
    QVERIFY(qGray(image.pixel(icon.width() / 4, 10)) < 80);
    QVERIFY(qGray(image.pixel(icon.width() * 3 / 4, 10)) > 170);
}

void PictureFileTest::aPhotographTakesLittleMemory()
{
    const QString path =
        file(QStringLiteral("photo.jpg"), photograph(QSize(6000, 4000), QImage::Format_RGB32));
    const qint64 before = memory("VmRSS:");
    // Forgets the peak of before.
    writeFile(QStringLiteral("/proc/self"), QStringLiteral("clear_refs"), "5");
    QVERIFY(!PictureFile(path).load(96).isNull());
    const qint64 grown = memory("VmHWM:") - before;
    // Of 24 million pixels, each of at least three bytes.
    QVERIFY2(grown < 24'000, qPrintable(QStringLiteral("%1 kB").arg(grown)));
}

void PictureFileTest::aNarrowPictureKeepsAtLeastOnePixel()
{
    QCOMPARE(PictureFile(file(QStringLiteral("a.png"), pngOf(QSize(4096, 1)))).load(96).size(), QSize(96, 1));
}

void PictureFileTest::theContentDecidesNotTheName()
{
    const QImage image = PictureFile(file(QStringLiteral("icon1.gif"), jpegOf(QSize(24, 24)))).load(96);
    QCOMPARE(image.size(), QSize(24, 24));
}

void PictureFileTest::theFirstPictureOfAGifIsRead()
{
    const QImage image = PictureFile(file(QStringLiteral("a.gif"), gifOf())).load(96);
    QCOMPARE(image.size(), QSize(1, 1));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
}

void PictureFileTest::whatIsNoPictureIsRefusedByName_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QString noPicture = QStringLiteral("neither a GIF nor a JPEG nor a PNG");
    const QString damaged = QStringLiteral("damaged or incomplete");
    QTest::newRow("empty") << QByteArray() << noPicture;
    QTest::newRow("text") << QByteArray("Dear Sir or Madam") << noPicture;
    QTest::newRow("drawing commands") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>") << noPicture;
    QTest::newRow("a JPEG's first bytes alone") << QByteArray("\xFF\xD8\xFF") << damaged;
    QTest::newRow("a GIF's first bytes alone") << QByteArray("GIF89a") << damaged;
    QTest::newRow("huge PNG") << pngHeaderClaiming(QSize(30000, 30000)) << QStringLiteral("30000 x 30000");
    QTest::newRow("huge GIF") << gifOf(QSize(30000, 30000)) << QStringLiteral("30000 x 30000");
    QTest::newRow("wide GIF") << gifOf(QSize(4097, 20)) << QStringLiteral("4097 x 20");
    QTest::newRow("huge JPEG") << jpegClaiming(QSize(30000, 30000))
                               << QStringLiteral("30000 x 30000 pixels large, more than 12000 x 12000");
    QTest::newRow("wide JPEG") << jpegClaiming(QSize(12001, 20)) << QStringLiteral("12001 x 20");
    QTest::newRow("large JPEG of several scans") << progressiveJpegOf(
        QSize(4097, 16)) << QStringLiteral("4097 x 16 pixels large, more than 4096 x 4096");
    QTest::newRow("large JPEG of a scan for each colour") << withOneColourFirst(
        jpegClaiming(QSize(5000, 16))) << QStringLiteral("5000 x 16 pixels large, more than 4096 x 4096");
    QTest::newRow("wide PNG") << pngHeaderClaiming(QSize(4097, 1)) << QStringLiteral("4097 x 1");
}

void PictureFileTest::whatIsNoPictureIsRefusedByName()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString text = refusal(file(QStringLiteral("stranger.gif"), bytes));
    QVERIFY2(text.contains(QLatin1String("stranger.gif")), qPrintable(text));
    QVERIFY2(text.contains(reason), qPrintable(text));
}

void PictureFileTest::aPictureCutAnywhereIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("gif") << gifOf();
    QTest::newRow("jpeg") << jpegOf(QSize(40, 40));
    QTest::newRow("png") << pngOf(QSize(40, 40));
}

void PictureFileTest::aPictureCutAnywhereIsRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(refusal(file(QStringLiteral("whole"), bytes)).isEmpty());
    // The last bytes of a GIF and a PNG only say that nothing follows.
    constexpr qsizetype endMark = 5;
    for (qsizetype length = 0; length < bytes.size() - endMark; ++length) {
        const QString path = file(QStringLiteral("cut"), bytes.left(length));
        QVERIFY2(!refusal(path).isEmpty(), qPrintable(QStringLiteral("accepted at %1 bytes").arg(length)));
    }
}

void PictureFileTest::aPipeDoesNotKeepTheProgramWaiting()
{
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.gif"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    QVERIFY(refusal(pipe).contains(QLatin1String("not an ordinary file")));
}

void PictureFileTest::aFolderIsRefused()
{
    QVERIFY(refusal(m_folder.path()).contains(QLatin1String("not an ordinary file")));
}

void PictureFileTest::aMissingFileIsRefused()
{
    const QString text = refusal(m_folder.filePath(QStringLiteral("gone.gif")));
    QVERIFY2(text.contains(QLatin1String("gone.gif")) && text.contains(QLatin1String("no such file")),
        qPrintable(text));
}

void PictureFileTest::aFileOfMoreThan64MebibytesIsRefused()
{
    const QString path = file(QStringLiteral("long.png"), pngOf(QSize(1, 1)));
    QVERIFY(QFile::resize(path, 64LL * 1024 * 1024 + 1));
    QVERIFY(refusal(path).contains(QLatin1String("64 MiB")));
}

void PictureFileTest::aPhotographWithAFilmBehindItIsRead_data()
{
    QTest::addColumn<QByteArray>("film");
    QTest::newRow("scans without an end") << QByteArray("\xFF\xDA\x00\x0C").repeated(1'000'000);
    QTest::newRow("ends") << QByteArray("\xFF\xD9").repeated(1000);
    QTest::newRow("another picture, cut") << jpegOf(QSize(40, 40)).chopped(20);
}

void PictureFileTest::aPhotographWithAFilmBehindItIsRead()
{
    QFETCH(const QByteArray, film);
    const QString path = file(QStringLiteral("photograph.jpg"), jpegOf(QSize(400, 300)) + film);
    QCOMPARE(PictureFile(path).load(96).size(), QSize(96, 72));
}

void PictureFileTest::aThumbnailInAPhotographIsNotItsEnd()
{
    // An application's segment holds a whole picture of its own.
    const QByteArray thumbnail = jpegOf(QSize(16, 16));
    const QByteArray photograph = jpegOf(QSize(400, 300));
    const auto length = static_cast<quint16>(thumbnail.size() + 2);
    QByteArray bytes = photograph.left(2) + QByteArray("\xFF\xE1");
    bytes += static_cast<char>(length / 256);
    bytes += static_cast<char>(length % 256);
    bytes += thumbnail + photograph.mid(2);
    QCOMPARE(PictureFile(file(QStringLiteral("whole.jpg"), bytes)).load(96).size(), QSize(96, 72));
    QVERIFY(!refusal(file(QStringLiteral("cut.jpg"), bytes.chopped(200))).isEmpty());
}

void PictureFileTest::aJpegOfThousandsOfScansIsRefusedAtOnce()
{
    const QByteArray picture = jpegOf(QSize(4096, 4096));
    const qsizetype scan = picture.indexOf("\xFF\xDA");
    QVERIFY(scan > 0);
    const QByteArray header = picture.mid(scan, 14);
    const QByteArray bytes = picture.left(scan) + header.repeated(100'000) + picture.mid(scan);

    QElapsedTimer timer;
    timer.start();
    const QString path = file(QStringLiteral("scans.jpg"), bytes);
    QVERIFY(refusal(path).contains(QLatin1String("damaged")));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

AMBERTASK_TEST_MAIN(PictureFileTest)
#include "tst_picturefile.moc"

#include "Damage.h"
#include "categories/PictureFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"
#include "system/sound/SoundProcess.h"
#include "system/sound/WaveFile.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace std::chrono_literals;

namespace
{

constexpr qint64 Deadline = 10'000; ///< milliseconds for one file
constexpr int Edge = 96;

/// A picture with something on it, in the format of that name.
QByteArray pictureIn(const char* format, bool progressive = false)
{
    QImage image(48, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 5, y * 6, x * y));
        }
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    return writer.write(image) ? buffer.data() : QByteArray();
}

/// `bytes` with the number at `first` and at `second`.
template <typename Number>
QByteArray claiming(QByteArray bytes, qsizetype first, qsizetype second, Number number, bool bigEndian)
{
    for (const qsizetype place : {first, second}) {
        if (bigEndian) {
            qToBigEndian(number, bytes.data() + place);
        } else {
            qToLittleEndian(number, bytes.data() + place);
        }
    }
    return bytes;
}

/// A JPEG whose frame header claims 65500 x 65500 pixels.
QByteArray hugeJpeg(bool progressive)
{
    const QByteArray bytes = pictureIn("jpg", progressive);
    const qsizetype frame = bytes.indexOf(progressive ? "\xFF\xC2" : "\xFF\xC0");
    return claiming<quint16>(bytes, frame + 5, frame + 7, 65500, true);
}

} // namespace

class DamagedPicturesAndSoundsTest : public TestCase
{
    Q_OBJECT

private slots:
    /// The decoders say on the error stream what they think of a file; that is no fault.
    void init() override { }
    void aDamagedPictureIsRefusedOrShown_data();
    void aDamagedPictureIsRefusedOrShown();
    void aPictureThatClaimsToBeHugeIsRefusedAtOnce_data();
    void aPictureThatClaimsToBeHugeIsRefusedAtOnce();
    void aDamagedWaveHasNoLengthOrOneOfItsSize();
    void thePlayerPlaysDamagedWavesOrNothing();

private:
    /// Whether the picture was accepted; fails the test when it took too long or has no sensible size.
    bool isAccepted(const QByteArray& bytes, const QString& what);
    QString fileOf(const QByteArray& bytes) const
    {
        return writeFile(m_folder.path(), QStringLiteral("damaged"), bytes);
    }

    QTemporaryDir m_folder;
    std::mt19937 m_chance{20260115};
};

bool DamagedPicturesAndSoundsTest::isAccepted(const QByteArray& bytes, const QString& what)
{
    QElapsedTimer timer;
    timer.start();
    bool accepted = false;
    try {
        const QImage image = PictureFile(fileOf(bytes)).load(Edge);
        accepted = true;
        const bool fits = !image.isNull() && image.width() <= Edge && image.height() <= Edge;
        if (!fits) {
            QTest::qFail(qPrintable(QStringLiteral("a wrong size, ") + what), __FILE__, __LINE__);
        }
    } catch (const RuntimeError& error) {
        if (!error.text().contains(QLatin1String("damaged"))) {
            QTest::qFail(qPrintable(QStringLiteral("an error without a name, ") + what), __FILE__, __LINE__);
        }
    }
    if (timer.elapsed() > Deadline) {
        QTest::qFail(qPrintable(QStringLiteral("too long, ") + what), __FILE__, __LINE__);
    }
    return accepted;
}

void DamagedPicturesAndSoundsTest::aDamagedPictureIsRefusedOrShown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("png") << pictureIn("png") << true;
    QTest::newRow("jpeg") << pictureIn("jpg") << true;
    QTest::newRow("progressive jpeg") << pictureIn("jpg", true) << true;
    QTest::newRow("gif") << gifOf() << true;
    QTest::newRow("bmp") << pictureIn("bmp") << false;
    QTest::newRow("ico") << pictureIn("ico") << false;
}

void DamagedPicturesAndSoundsTest::aDamagedPictureIsRefusedOrShown()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isKnown);
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(isAccepted(bytes, QStringLiteral("undamaged")), isKnown);
    int tried = 0;
    int accepted = 0;
    for (const Damage& damage : damagedAnywhere(bytes, 300, 60, m_chance)) {
        ++tried;
        accepted += isAccepted(damage.bytes, damage.what) ? 1 : 0;
    }
    QVERIFY(isKnown || accepted == 0);
    qInfo("%d damaged pictures, %d of them refused", tried, tried - accepted);
}

void DamagedPicturesAndSoundsTest::aPictureThatClaimsToBeHugeIsRefusedAtOnce_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("png") << pngHeaderClaiming(QSize(65500, 65500));
    QTest::newRow("png, larger than any") << pngHeaderClaiming(QSize(0x7fffffff, 0x7fffffff));
    QTest::newRow("gif") << gifOf(QSize(65535, 65535));
    QTest::newRow("jpeg") << hugeJpeg(false);
    QTest::newRow("progressive jpeg") << hugeJpeg(true);
    QTest::newRow("bmp") << claiming<quint32>(pictureIn("bmp"), 18, 22, 0x7ffffff0, false);
    QTest::newRow("ico") << claiming<quint32>(pictureIn("ico"), 8, 14, 0xffffffff, false);
}

void DamagedPicturesAndSoundsTest::aPictureThatClaimsToBeHugeIsRefusedAtOnce()
{
    QFETCH(const QByteArray, bytes);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!isAccepted(bytes, QStringLiteral("huge")));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

void DamagedPicturesAndSoundsTest::aDamagedWaveHasNoLengthOrOneOfItsSize()
{
    const QDir shipped(QStringLiteral(AMBERTASK_SHIPPED_SOUNDS));
    int tried = 0;
    int refused = 0;
    for (const QString& name : shipped.entryList({QStringLiteral("*.wav")})) {
        const QByteArray bytes = bytesOf(shipped.filePath(name));
        // What matters of a wave stands at its beginning.
        std::vector<Damage> damages = damagedAnywhere(bytes, 40, 40, m_chance);
        for (qsizetype position = 0; position < 44; ++position) {
            for (int bit = 0; bit < 8; ++bit) {
                damages.push_back(flipped(bytes, position, 1 << bit));
            }
        }
        for (const Damage& damage : damages) {
            ++tried;
            const auto length = waveLength(fileOf(damage.bytes));
            refused += length ? 0 : 1;
            // One byte a second is the slowest that a header can say.
            QVERIFY2(!length || (*length >= 0ms && *length <= std::chrono::seconds(damage.bytes.size())),
                qPrintable(name + u' ' + damage.what));
        }
    }
    QVERIFY(tried > 0);
    qInfo("%d damaged waves, %d of them refused", tried, refused);
}

void DamagedPicturesAndSoundsTest::thePlayerPlaysDamagedWavesOrNothing()
{
    SoundProcess backend([] { return QStringLiteral(AMBERTASK_SOUND_PROGRAM); });
    const QByteArray bytes = bytesOf(QStringLiteral(AMBERTASK_SHIPPED_SOUNDS "/bell.wav"));
    int played = 0;
    for (const Damage& damage : damagedAnywhere(bytes.left(4000), 100, 20, m_chance)) {
        const QString file = writeFile(m_folder.path(), QStringLiteral("%1.wav").arg(++played), damage.bytes);
        backend.play(file);
        QCoreApplication::processEvents();
        if (played % 7 == 0) {
            backend.stopAll();
        }
    }
    backend.stopAll();
    qInfo("%d damaged waves given to the player", played);
}

AMBERTASK_TEST_MAIN(DamagedPicturesAndSoundsTest)
#include "tst_damaged_pictures_and_sounds.moc"

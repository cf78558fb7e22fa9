#include "categories/CustomIcons.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Folder {
    QString pictures() const { return folder.path() + QLatin1String("/custom icons"); }
    QString write(const QString& name, const QByteArray& bytes) const
    {
        return writeFile(pictures(), name, bytes);
    }
    /// Equal numbers mean that both loads come from one decoding.
    qint64 decoding(const QString& name) const { return icons.load(name).cacheKey(); }
    QColor colour(const QString& name) const
    {
        return icons.load(name).pixmap(24, 24).toImage().pixelColor(12, 12);
    }

    QTemporaryDir folder;
    CustomIcons icons{folder.path()};
};

} // namespace

/// Pictures are decoded when they are first needed and when their file has changed.
class CustomIconsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aPhotographIsDecodedOnce()
    {
        const Folder f;
        f.write(QStringLiteral("icon1.gif"), jpegOf(QSize(4000, 3000)));
        const QIcon first = f.icons.load(QStringLiteral("icon1.gif"));
        QCOMPARE(first.availableSizes(), QList<QSize>{QSize(96, 72)});
        QCOMPARE(f.decoding(QStringLiteral("icon1.gif")), first.cacheKey());
    }

    void aFileOfTheSameNameAndLengthAndAgeIsDecodedAnew()
    {
        const Folder f;
        const QByteArray red = pngOf(QSize(24, 24), Qt::red);
        const QByteArray green = pngOf(QSize(24, 24), Qt::green);
        // What follows the end of a picture is not looked at.
        const qsizetype length = qMax(red.size(), green.size());
        const QString path = f.write(QStringLiteral("icon1.gif"), red.leftJustified(length, '\0'));
        const QDateTime age = QFileInfo(path).lastModified();
        QCOMPARE(f.colour(QStringLiteral("icon1.gif")), QColor(Qt::red));
        // Waits until the file system's clock has advanced: it ticks every few milliseconds.
        QDateTime changed = QFileInfo(path).metadataChangeTime();
        for (const QDeadlineTimer end(10'000);
             QFileInfo(path).metadataChangeTime() == changed && !end.hasExpired();) {
            f.write(QStringLiteral("icon1.gif"), green.leftJustified(length, '\0'));
            QFile file(path);
            QVERIFY(
                file.open(QIODevice::ReadWrite) && file.setFileTime(age, QFileDevice::FileModificationTime));
        }
        QCOMPARE(QFileInfo(path).size(), length);
        QCOMPARE(QFileInfo(path).lastModified(), age);
        QCOMPARE(f.colour(QStringLiteral("icon1.gif")), QColor(Qt::green));
    }

    void aStoredPictureIsSeenAtOnce()
    {
        const Folder f;
        const QString source = f.write(QStringLiteral("source.png"), pngOf(QSize(24, 24), Qt::green));
        f.write(QStringLiteral("icon1.gif"), pngOf(QSize(24, 24), Qt::red));
        QCOMPARE(f.colour(QStringLiteral("icon1.gif")), QColor(Qt::red));
        f.icons.store(source, QStringLiteral("icon1.gif"), {}, {});
        QCOMPARE(f.colour(QStringLiteral("icon1.gif")), QColor(Qt::green));
    }

    void aPictureThatIsGoneIsMissed()
    {
        const Folder f;
        const QString path = f.write(QStringLiteral("icon1.gif"), gifOf());
        f.icons.load(QStringLiteral("icon1.gif"));
        QVERIFY(QFile::remove(path));
        const auto error = caught<RuntimeError>([&] { f.icons.load(QStringLiteral("icon1.gif")); });
        QVERIFY(error.has_value());
        QVERIFY(error->text().contains(QLatin1String("icon1.gif")));
    }

    void aPictureThatHasBeenDamagedIsRefused()
    {
        const Folder f;
        f.write(QStringLiteral("icon1.gif"), gifOf());
        f.icons.load(QStringLiteral("icon1.gif"));
        f.write(QStringLiteral("icon1.gif"), "Dear Sir or Madam");
        QVERIFY(caught<RuntimeError>([&] { f.icons.load(QStringLiteral("icon1.gif")); }).has_value());
    }

    void whatIsKeptHasAnEnd()
    {
        const Folder f;
        const QByteArray picture = pngOf(QSize(96, 96));
        constexpr int count = 600;
        const auto name = [](int i) {
            return QStringLiteral("icon%1.gif").arg(i);
        };
        QList<qint64> decodings;
        for (int i = 0; i < count; ++i) {
            f.write(name(i), picture);
            decodings.append(f.decoding(name(i)));
        }
        QCOMPARE(f.decoding(name(count - 1)), decodings.last());
        QVERIFY(f.decoding(name(0)) != decodings.first());
    }
};

AMBERTASK_TEST_MAIN(CustomIconsTest)
#include "tst_custom_icons.moc"

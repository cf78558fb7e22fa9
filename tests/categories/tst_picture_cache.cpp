#include "categories/PackedPicture.h"
#include "categories/PictureCache.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

namespace
{

QImage pictureOf(const QSize& size, const QColor& colour)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(colour);
    return picture;
}

struct Cache {
    QString folder() const { return place.filePath(QStringLiteral("a/pictures")); }
    QString file(const QString& key) const { return folder() + u'/' + key + QLatin1String(".pixels"); }
    void write(const QString& key, const QByteArray& bytes) const
    {
        QVERIFY(QDir().mkpath(folder()));
        QFile file(this->file(key));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QTemporaryDir place;
    PictureCache cache{folder()};
};

const QString Key = QStringLiteral("0123");

} // namespace

/// Whatever lies in the cache, a picture comes out of it or none.
class PictureCacheTest : public TestCase
{
    Q_OBJECT

private slots:
    void aRenditionComesBackAsItWas()
    {
        const Cache f;
        const QImage picture = pictureOf(QSize(96, 5), QColor(10, 200, 30, 128));
        f.cache.store(Key, picture);
        QCOMPARE(f.cache.load(Key), picture);
        QVERIFY(f.cache.load(QStringLiteral("4567")).isNull());
    }

    void folderAndFilesArePrivateWhateverTheMaskIs()
    {
        const Cache f;
        const mode_t before = ::umask(0);
        f.cache.store(Key, pictureOf(QSize(1, 1), Qt::red));
        ::umask(before);
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(f.folder()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0700});
        QCOMPARE(::stat(QFile::encodeName(f.file(Key)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0600});
    }

    void anotherFileOfTheNameHasAnotherKey()
    {
        const QTemporaryDir folder;
        const QString path = writeFile(folder.path(), QStringLiteral("a.gif"), "one");
        const QString first = PictureCache::keyOf(path);
        QCOMPARE(PictureCache::keyOf(path), first);
        writeFile(folder.path(), QStringLiteral("a.gif"), "longer");
        QVERIFY(PictureCache::keyOf(path) != first);
    }

    void rubbishIsNoPicture_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = packedPicture(pictureOf(QSize(7, 9), Qt::blue));
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("Dear Sir or Madam, this is no picture.");
        QTest::newRow("cut off") << good.chopped(1);
        QTest::newRow("head alone") << good.left(16);
        QTest::newRow("too long") << good + 'x';
        for (const auto& [name, width, height] :
            std::initializer_list<std::tuple<const char*, int, int>>{{"no width", 0, 9}, {"no height", 7, 0},
                {"wider than it says", 6, 9}, {"huge", 65535, 65535}, {"too wide", 97, 1}}) {
            QByteArray bytes = good;
            bytes[12] = static_cast<char>(width & 255);
            bytes[13] = static_cast<char>(width >> 8);
            bytes[14] = static_cast<char>(height & 255);
            bytes[15] = static_cast<char>(height >> 8);
            QTest::newRow(name) << bytes;
        }
        QTest::newRow("larger than any") << good.leftJustified(4 * LargestPackedPicture, 'x');
    }
    void rubbishIsNoPicture()
    {
        QFETCH(const QByteArray, bytes);
        const Cache f;
        f.write(Key, bytes);
        QVERIFY(f.cache.load(Key).isNull());
        f.cache.store(Key, pictureOf(QSize(3, 3), Qt::green));
        QCOMPARE(f.cache.load(Key).pixelColor(1, 1), QColor(Qt::green));
    }

    void aPipeOrAFolderInThePlaceOfAPictureIsPassedOver()
    {
        const Cache f;
        QVERIFY(QDir().mkpath(f.file(Key)));
        f.cache.store(Key, pictureOf(QSize(3, 3), Qt::green));
        QVERIFY(f.cache.load(Key).isNull());
        QVERIFY(QDir().rmdir(f.file(Key)));
        QCOMPARE(::mkfifo(QFile::encodeName(f.file(Key)).constData(), 0600), 0);
        QVERIFY(f.cache.load(Key).isNull());
        f.cache.store(Key, pictureOf(QSize(3, 3), Qt::green));
        QVERIFY(!f.cache.load(Key).isNull());
    }

    void withoutAPlaceNothingIsKept()
    {
        const QTemporaryDir place;
        writeFile(place.path(), QStringLiteral("a"), "a file where a folder should be");
        const PictureCache cache(place.filePath(QStringLiteral("a/pictures")));
        cache.store(Key, pictureOf(QSize(3, 3), Qt::green));
        cache.tidy();
        QVERIFY(cache.load(Key).isNull());
    }

    void theOldestGoWhereThereAreTooMany()
    {
        const Cache f;
        const QDateTime now(QDate(2026, 3, 2), QTime(10, 0));
        for (int i = 0; i < PictureCache::MostPictures + 20; ++i) {
            const QString key = QString::number(i);
            f.write(key, "x");
            QFile file(f.file(key));
            QVERIFY(file.open(QIODevice::ReadWrite)
                && file.setFileTime(now.addSecs(-i), QFileDevice::FileModificationTime));
        }
        writeFile(f.folder(), QStringLiteral("of somebody else"), "x");
        f.cache.tidy();
        QCOMPARE(QDir(f.folder()).entryList(QDir::Files).size(), PictureCache::MostPictures + 1);
        QVERIFY(QFile::exists(f.file(QStringLiteral("0"))));
        QVERIFY(!QFile::exists(f.file(QString::number(PictureCache::MostPictures))));
    }
};

AMBERTASK_TEST_MAIN(PictureCacheTest)
#include "tst_picture_cache.moc"

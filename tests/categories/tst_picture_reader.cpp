#include "categories/PictureReader.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// What a reader tells.
struct Reader {
    explicit Reader(const ProgramPath& program = [] { return QStringLiteral(AMBERTASK_PICTURE_PROGRAM); })
        : reader(program), read(&reader, &PictureReader::read), refused(&reader, &PictureReader::refused),
          finished(&reader, &PictureReader::finished)
    {
    }
    QString write(const char* name, const QByteArray& bytes) const
    {
        return writeFile(folder.path(), QLatin1String(name), bytes);
    }
    QString script(const QByteArray& text) const
    {
        const QString path = write("reader", "#!/bin/sh\n" + text + '\n');
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return path;
    }

    QTemporaryDir folder;
    PictureReader reader;
    QSignalSpy read;
    QSignalSpy refused;
    QSignalSpy finished;
};

} // namespace

class PictureReaderTest : public TestCase
{
    Q_OBJECT

private slots:
    void picturesAreReadOneAfterTheOther()
    {
        Reader f;
        const QString photograph = f.write("a photo.gif", jpegOf(QSize(4000, 3000)));
        const QString letter = f.write("letter.gif", "Dear Sir or Madam");
        const QString small = f.write("small.gif", pngOf(QSize(24, 24), Qt::green));
        for (const QString& path : {photograph, letter, small, small}) {
            f.reader.request(path);
        }
        f.reader.begin();
        QTRY_COMPARE(f.finished.count(), 1);
        QCOMPARE(f.read.count(), 2);
        QCOMPARE(f.read.at(0).at(0).toString(), photograph);
        QCOMPARE(f.read.at(0).at(1).value<QImage>().size(), QSize(96, 72));
        QCOMPARE(f.read.at(1).at(1).value<QImage>().pixelColor(12, 12), QColor(Qt::green));
        QCOMPARE(f.refused.count(), 1);
        QVERIFY(f.refused.at(0).at(1).toString().contains(QLatin1String("letter.gif")));
        QVERIFY(f.refused.at(0).at(1).toString().contains(QLatin1String("neither a GIF nor a JPEG")));
    }

    void nothingIsReadBeforeItBegins()
    {
        Reader f;
        f.reader.request(f.write("small.gif", gifOf()));
        QCoreApplication::processEvents();
        QCOMPARE(f.read.count() + f.refused.count() + f.finished.count(), 0);
    }

    void whatComesLaterIsReadToo()
    {
        Reader f;
        f.reader.begin();
        QTRY_COMPARE(f.finished.count(), 1);
        f.reader.request(f.write("small.gif", gifOf()));
        QTRY_COMPARE(f.read.count(), 1);
    }

    void withoutAProgramForItTheyAreReadHere()
    {
        for (const ProgramPath& program :
            {ProgramPath(), ProgramPath([] { return QStringLiteral("/nowhere"); })}) {
            Reader f(program);
            f.reader.request(f.write("small.gif", gifOf()));
            f.reader.request(f.write("letter.gif", "Dear Sir or Madam"));
            f.reader.begin();
            QTRY_COMPARE(f.finished.count(), 1);
            QCOMPARE(f.read.count(), 1);
            QCOMPARE(f.refused.count(), 1);
        }
    }

    void aReaderThatCannotRunCountsAsMissing()
    {
        QString program;
        Reader f([&program] { return program; });
        program = f.script("exit 127");
        f.reader.request(f.write("small.gif", gifOf()));
        f.reader.begin();
        QTRY_COMPARE(f.finished.count(), 1);
        QCOMPARE(f.read.count(), 1);
    }

    void aPictureThatEndsItsReaderIsRefusedAndNotReadHere()
    {
        QString program;
        Reader f([&program] { return program; });
        program = f.script("printf '\\000\\000\\000\\000'; head -c 1 > /dev/null; kill -SEGV $$");
        f.reader.request(f.write("hostile.gif", gifOf()));
        f.reader.begin();
        QTRY_COMPARE(f.finished.count(), 1);
        QCOMPARE(f.read.count(), 0);
        QCOMPARE(f.refused.count(), 1);
        QVERIFY(f.refused.at(0).at(1).toString().contains(QLatin1String("hostile.gif")));
    }

    void aReaderThatDoesNotStartAgainCountsAsMissing()
    {
        QString program = QStringLiteral(AMBERTASK_PICTURE_PROGRAM);
        Reader f([&program] { return program; });
        f.reader.request(f.write("first.gif", gifOf()));
        f.reader.begin();
        QTRY_COMPARE(f.finished.count(), 1);
        program = f.script("exit 127");
        f.reader.request(f.write("second.gif", gifOf()));
        QTRY_COMPARE(f.finished.count(), 2);
        QCOMPARE(f.read.count(), 2);
    }

    void theProgramEndsInTheMiddleOfAPicture()
    {
        QString program;
        std::optional<Reader> f(std::in_place, [&program] { return program; });
        program = f->script("printf '\\000\\000\\000\\000'; exec sleep 60");
        f->reader.request(f->write("slow.gif", gifOf()));
        f->reader.begin();
        QCoreApplication::processEvents();
        f.reset();
    }
};

AMBERTASK_TEST_MAIN(PictureReaderTest)
#include "tst_picture_reader.moc"

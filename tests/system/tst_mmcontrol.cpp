#include "support/TestMain.h"
#include "system/MMControl.h"
#include "system/sound/WaveFile.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace std::chrono_literals;

namespace
{

class RecordedBackend final : public WaveBackend
{
public:
    explicit RecordedBackend(QStringList& log) : m_log(log) { }
    void play(const QString& file) override { m_log.append(QStringLiteral("play ") + file); }
    void stopAll() override { m_log.append(QStringLiteral("stop")); }

private:
    QStringList& m_log;
};

QByteArray number(quint32 value, int bytes)
{
    QByteArray text(4, '\0');
    qToLittleEndian(value, text.data());
    return text.left(bytes);
}

QByteArray chunk(const QByteArray& name, const QByteArray& content)
{
    return name + number(static_cast<quint32>(content.size()), 4) + content
        + QByteArray(content.size() % 2, '\0');
}

/// 8000 bytes a second: mono, eight bits.
QByteArray format(quint32 tag = 1, quint32 bytesPerSecond = 8000)
{
    return number(tag, 2) + number(1, 2) + number(8000, 4) + number(bytesPerSecond, 4) + number(1, 2)
        + number(8, 2);
}

QByteArray riff(const QByteArray& chunks)
{
    return chunk("RIFF", "WAVE" + chunks);
}

QByteArray silence(int samples)
{
    return QByteArray(samples, '\x80');
}

} // namespace

class tst_mmcontrol : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    int m_files = 0;

    QString file(const QByteArray& content)
    {
        const QString path = m_folder.filePath(QStringLiteral("a b %1.wav").arg(m_files++));
        QFile written(path);
        return written.open(QIODevice::WriteOnly) && written.write(content) == content.size() ? path
                                                                                              : QString();
    }

private slots:
    void playStartsTheFileThatWasOpened()
    {
        QStringList log;
        MMControl mmc([&log] { return std::make_unique<RecordedBackend>(log); });
        mmc.FileName = QStringLiteral("/sounds/my tone.wav");
        mmc.Command(QStringLiteral("Open"));
        mmc.FileName = QStringLiteral("other.wav");
        mmc.Command(QStringLiteral("Play"));
        QCOMPARE(log, QStringList(QStringLiteral("play /sounds/my tone.wav")));
    }

    void severalSoundsInARowAreEachStarted()
    {
        QStringList log;
        MMControl mmc([&log] { return std::make_unique<RecordedBackend>(log); });
        for (const char* name : {"a.wav", "b.wav"}) {
            mmc.FileName = QString::fromLatin1(name);
            mmc.Command(QStringLiteral("Open"));
            mmc.Command(QStringLiteral("Play"));
        }
        QCOMPARE(log, QStringList({QStringLiteral("play a.wav"), QStringLiteral("play b.wav")}));
    }

    void closeStopsAllAndForgetsTheFile()
    {
        QStringList log;
        MMControl mmc([&log] { return std::make_unique<RecordedBackend>(log); });
        mmc.FileName = QStringLiteral("a.wav");
        mmc.Command(QStringLiteral("Open"));
        mmc.Command(QStringLiteral("Play"));
        mmc.Command(QStringLiteral("Close"));
        mmc.Command(QStringLiteral("Play"));
        QCOMPARE(log, QStringList({QStringLiteral("play a.wav"), QStringLiteral("stop")}));
    }

    void theBackendIsMadeByTheFirstPlayAndOnlyOnce()
    {
        QStringList log;
        int made = 0;
        MMControl mmc([&] {
            ++made;
            return std::make_unique<RecordedBackend>(log);
        });
        mmc.FileName = QStringLiteral("a.wav");
        mmc.Command(QStringLiteral("Close"));
        mmc.Command(QStringLiteral("Open"));
        QCOMPARE(made, 0);
        mmc.Command(QStringLiteral("Play"));
        mmc.Command(QStringLiteral("Play"));
        QCOMPARE(made, 1);
    }

    void aMachineWithoutSoundIsSilent()
    {
        MMControl without(nullptr);
        MMControl failing([] { return std::unique_ptr<WaveBackend>(); });
        for (MMControl* mmc : {&without, &failing}) {
            const QSignalSpy done(mmc, &MMControl::Done);
            mmc->FileName = QStringLiteral("a.wav");
            for (const char* command : {"Open", "Play", "Close", "Rewind"}) {
                mmc->Command(QString::fromLatin1(command));
            }
            QCOMPARE(done.count(), 0);
        }
    }

    void theEndOfPlayingIsTold()
    {
        QStringList log;
        RecordedBackend* backend = nullptr;
        MMControl mmc([&] {
            auto made = std::make_unique<RecordedBackend>(log);
            backend = made.get();
            return made;
        });
        const QSignalSpy done(&mmc, &MMControl::Done);
        mmc.FileName = QStringLiteral("a.wav");
        mmc.Command(QStringLiteral("Open"));
        mmc.Command(QStringLiteral("Play"));
        QVERIFY(backend != nullptr);
        backend->onDone();
        QCOMPARE(done.count(), 1);
    }

    void theLengthOfAWaveIsThatOfItsSamples()
    {
        const auto length = waveLength(file(riff(chunk("fmt ", format()) + chunk("data", silence(4000)))));
        QVERIFY(length == 500ms);
    }

    void chunksThatSayOtherThingsAreSteppedOver()
    {
        const QByteArray chunks = chunk("LIST", "odd") + chunk("fmt ", format() + number(0, 2))
            + chunk("fact", "1234") + chunk("data", silence(8000)) + chunk("id3 ", "x");
        QVERIFY(waveLength(file(riff(chunks))) == 1000ms);
    }

    void aWaveThatWasCutOffPlaysWhatIsThere()
    {
        const QByteArray chunks = chunk("fmt ", format()) + "data" + number(0xffffffff, 4) + silence(2000);
        QVERIFY(waveLength(file(riff(chunks))) == 250ms);
    }

    void whatIsNoPlayableWaveHasNoLength_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray data = chunk("data", silence(100));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("This is no sound at all, but it is long enough to be one.");
        QTest::newRow("another RIFF") << chunk("RIFF", "AVI " + chunk("fmt ", format()) + data);
        QTest::newRow("header only") << QByteArray("RIFF\0\0\0\0WAVE", 12);
        QTest::newRow("no format") << riff(data);
        QTest::newRow("format cut off") << riff(chunk("fmt ", format())).left(30);
        QTest::newRow("no samples") << riff(chunk("fmt ", format()) + chunk("data", {}));
        QTest::newRow("no data chunk") << riff(chunk("fmt ", format()));
        QTest::newRow("compressed") << riff(chunk("fmt ", format(0x55)) + data);
        QTest::newRow("no bytes a second") << riff(chunk("fmt ", format(1, 0)) + data);
        QTest::newRow("a chunk beyond the end") << riff("junk" + number(0xfffffff0, 4));
        QTest::newRow("empty chunks without end") << riff(chunk("junk", {}).repeated(5000) + data);
    }

    void whatIsNoPlayableWaveHasNoLength()
    {
        QFETCH(QByteArray, content);
        const QString path = file(content);
        QVERIFY(!path.isEmpty());
        QVERIFY(!waveLength(path).has_value());
    }

    void missingFilesFoldersAndHugeFilesHaveNoLength()
    {
        QVERIFY(!waveLength(m_folder.filePath(QStringLiteral("missing.wav"))).has_value());
        QVERIFY(!waveLength(m_folder.path()).has_value());
        QVERIFY(!waveLength(QString()).has_value());
        const QString huge = file(riff(chunk("fmt ", format()) + chunk("data", silence(100))));
        QVERIFY(waveLength(huge).has_value());
        QVERIFY(QFile::resize(huge, qint64{64} * 1024 * 1024 + 1));
        QVERIFY(!waveLength(huge).has_value());
    }
};

AMBERTASK_TEST_MAIN(tst_mmcontrol)
#include "tst_mmcontrol.moc"

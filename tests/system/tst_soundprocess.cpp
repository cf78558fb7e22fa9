#include "support/TestMain.h"
#include "system/MMControl.h"
#include "system/Modules.h"
#include "system/sound/SoundProcess.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <optional>

namespace
{

/// One second of silence: mono, eight bits, 8000 a second.
QByteArray wave()
{
    const QByteArray samples(8000, '\x80');
    const QByteArray head =
        QByteArrayLiteral("RIFF\x64\x1f\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x40\x1f\0\0"
                          "\x01\0\x08\0data\x40\x1f\0\0");
    return head + samples;
}

/// A player that is a script, and a folder with a record of what it was asked for.
class Player
{
public:
    /// `script` finds its folder in $d.
    explicit Player(const QByteArray& script)
    {
        QFile program(path("player"));
        ready = program.open(QIODevice::WriteOnly)
            && program.write("#!/bin/sh\nd='" + QFile::encodeName(m_folder.path()) + "'\n" + script + '\n')
                > 0
            && program.setPermissions(
                QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QFile sound(path("a sound.wav"));
        ready = ready && sound.open(QIODevice::WriteOnly) && sound.write(wave()) > 0;
        program.close();
        process.emplace([program = path("player")] { return program; });
        process->onDone = [this] {
            ++done;
        };
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    void play() { process->play(path("a sound.wav")); }
    QByteArray read(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The id that the player has noted in the file "pid".
    pid_t pid() const { return static_cast<pid_t>(read("pid").trimmed().toInt()); }

    bool ready = false;
    int done = 0;
    std::optional<SoundProcess> process;

private:
    QTemporaryDir m_folder;
};

bool runs(pid_t process)
{
    return ::kill(process, 0) == 0;
}

const QByteArray NotesItsId = "echo $$ > $d/new; mv $d/new $d/pid; ";

} // namespace

/// A sound library may do anything to its process.
class SoundProcessTest : public TestCase
{
    Q_OBJECT

private slots:
    void aPlayerGetsTheNameAndTellsTheEnd()
    {
        Player player("head -c $(printf '%s' \"$d/a sound.wav.\" | wc -c) > $d/asked; echo; exec sleep 60");
        QVERIFY(player.ready);
        player.play();
        QTRY_COMPARE(player.done, 1);
        QCOMPARE(player.read("asked"), QFile::encodeName(player.path("a sound.wav")) + '\0');
    }

    void theEndIsToldWhenTheLastOfSeveralHasEnded()
    {
        Player player(NotesItsId + "echo; while [ ! -e $d/go ]; do sleep 0.01; done; echo; exec sleep 60");
        player.play();
        player.play();
        QTRY_VERIFY(player.pid() > 0);
        QVERIFY(QFile(player.path("go")).open(QIODevice::WriteOnly));
        QTRY_COMPARE(player.done, 1);
    }

    void aPlayerLivesNoLongerThanItsSounds()
    {
        Player player(NotesItsId + "while [ ! -e $d/go ]; do sleep 0.01; done; echo; exec sleep 60");
        player.play();
        QTRY_VERIFY(player.pid() > 0);
        const pid_t process = player.pid();
        QVERIFY(runs(process));
        QVERIFY(QFile(player.path("go")).open(QIODevice::WriteOnly));
        QTRY_VERIFY(!runs(process));
    }

    void aPlayerThatAbortsEndsTheSoundAlone()
    {
        Player player("kill -ABRT $$");
        player.play();
        QTRY_COMPARE(player.done, 1);
        player.play();
        QTRY_COMPARE(player.done, 2);
    }

    void aPlayerThatAnswersNothingIsEndedByClose()
    {
        Player player(NotesItsId + "trap '' TERM HUP INT; while :; do sleep 0.1; done");
        player.play();
        QTRY_VERIFY(player.pid() > 0);
        player.process->stopAll();
        QVERIFY(!runs(player.pid()));
        QCOMPARE(player.done, 0);
    }

    void aPlayerThatAnswersNothingIsEndedWithTheProgram()
    {
        Player player(NotesItsId + "trap '' TERM HUP INT; while :; do sleep 0.1; done");
        player.play();
        QTRY_VERIFY(player.pid() > 0);
        player.process.reset();
        QVERIFY(!runs(player.pid()));
    }

    void aMachineWithoutThePlayerIsSilent()
    {
        Player player("");
        const Modules modules(QStringLiteral("/nowhere"), {}, {QLatin1String(SoundProgram)});
        const std::unique_ptr<WaveBackend> backend = makeWaveBackend(modules);
        bool done = false;
        backend->onDone = [&done] {
            done = true;
        };
        backend->play(player.path("a sound.wav"));
        QTRY_VERIFY(done);
    }

    void whatIsNoWaveNeverGetsToAPlayer()
    {
        Player player(NotesItsId + "exec sleep 60");
        player.process->play(player.path("player"));
        player.process->play(player.path("missing.wav"));
        player.process->stopAll();
        QCOMPARE(player.pid(), 0);
        QCOMPARE(player.done, 0);
    }

    void thePlayerOfThisBuildEndsWithItsInputWhateverItDoes()
    {
        const Player asked("");
        for (const QByteArray& input : {QByteArray(), QFile::encodeName(asked.path("a sound.wav")) + '\0',
                 QByteArray("no such file\0", 13)}) {
            QProcess player;
            player.start(QStringLiteral(AMBERTASK_SOUND_PROGRAM), QStringList());
            player.write(input);
            player.closeWriteChannel();
            QVERIFY(player.waitForFinished());
            QCOMPARE(player.exitStatus(), QProcess::NormalExit);
            QCOMPARE(player.exitCode(), 0);
        }
    }
};

AMBERTASK_TEST_MAIN(SoundProcessTest)
#include "tst_soundprocess.moc"

#include "support/TestMain.h"
#include "system/Shell.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class ShellTest : public TestCase
{
    Q_OBJECT

private:
    /// A script that writes its arguments, one a line, into `record`.
    static void writeRecorder(const QString& path, const QString& record)
    {
        QFile script(path);
        QVERIFY(script.open(QIODevice::WriteOnly));
        if (path.endsWith(QLatin1String(".bat"))) {
            script.write("@echo started%*>> \"" + QDir::toNativeSeparators(record).toUtf8() + "\"\r\n");
        } else {
            script.write("#!/bin/sh\nprintf '%s\\n' started \"$@\" >> '" + record.toUtf8() + "'\n");
        }
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    /// The name of a script of this platform.
    static QString scriptNamed(const QString& name)
    {
        const bool isForWindows = QDir::separator() == u'\\';
        // No file has quotes in its name there.
        return isForWindows ? QString(name).remove(u'"') + QStringLiteral(".bat")
                            : name + QStringLiteral(".sh");
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().replace("\r\n", "\n") : QByteArray();
    }

private slots:
    void anExistingPathIsTheProgramWhateverItsCharacters()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(scriptNamed(QStringLiteral("a b; touch x$(y) \"z\"")));
        writeRecorder(path, folder.filePath(QStringLiteral("record")));
        QCOMPARE(commandOf(path), QStringList{path});
    }

    void otherwiseTheWordsAreTheProgramAndItsArguments()
    {
        QCOMPARE(commandOf(QStringLiteral("/bin/echo \"two words\" three")),
            QStringList({QStringLiteral("/bin/echo"), QStringLiteral("two words"), QStringLiteral("three")}));
        QCOMPARE(commandOf(QStringLiteral("   ")), QStringList());
    }

    void aFileIsStartedOnceAndNeverThroughAShell()
    {
        const QTemporaryDir folder;
        const QString record = folder.filePath(QStringLiteral("record"));
        const QString path = folder.filePath(scriptNamed(QStringLiteral("a b; touch x$(y)")));
        writeRecorder(path, record);
        QVERIFY(DesktopShell().startMinimized(path));
        QTRY_COMPARE(contentOf(record), QByteArray("started\n"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 2);
    }

    void aFileThatIsMissingIsNotStarted()
    {
        const QTemporaryDir folder;
        QVERIFY(!DesktopShell().startMinimized(folder.filePath(QStringLiteral("missing.exe"))));
        QVERIFY(!DesktopShell().startMinimized(QString()));
    }
};

AMBERTASK_TEST_MAIN(ShellTest)
#include "tst_shell.moc"

#include "support/TestMain.h"
#include "system/Registry.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// What stands for the Run key on a desktop of Linux.
class AutostartEntryTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { takeNewFolder(); }

    void theRunEntryIsADesktopEntry();
    void specialCharactersOfThePathAreEscaped_data();
    void specialCharactersOfThePathAreEscaped();
    void aPathWithALineBreakIsNotEntered();
    void anEntryIsReplaced();
    void deletingRemovesTheDesktopEntry();
    void deletingAMissingEntryIsSilent();
    void otherKeysAndHivesDoNotExist();
    void aFolderThatCannotBeMadeIsSilent();

private:
    void takeNewFolder();
    QString entryFile() const { return m_config->filePath(QStringLiteral("autostart/Ambertask.desktop")); }
    QByteArray entry() const
    {
        QFile file(entryFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_config;
    std::unique_ptr<Registry> m_registry = makeSystemRegistry();
};

void AutostartEntryTest::initTestCase()
{
    // The real location, which each test points to a folder of its own.
    QStandardPaths::setTestModeEnabled(false);
    takeNewFolder();
}

void AutostartEntryTest::takeNewFolder()
{
    m_config = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config->path()));
}

void AutostartEntryTest::theRunEntryIsADesktopEntry()
{
    writeRunEntry(*m_registry, QStringLiteral("/opt/ambertask"));
    QCOMPARE(entry(),
        QByteArray("[Desktop Entry]\nType=Application\nVersion=1.0\nName=Ambertask\n"
                   "Exec=\"/opt/ambertask/Ambertask\"\nTryExec=/opt/ambertask/Ambertask\nTerminal=false\n"
                   "Icon=ambertask\n"));
}

void AutostartEntryTest::specialCharactersOfThePathAreEscaped_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("exec");
    QTest::addColumn<QByteArray>("tryExec");
    QTest::newRow("blank") << QStringLiteral("/a b") << QByteArray("\"/a b/Ambertask\"")
                           << QByteArray("/a b/Ambertask");
    const QByteArray bySecondWord("/bin/sh -c \"exec \\\\\"\\\\$0\\\\\"\" ");
    QTest::newRow("percent") << QStringLiteral("/100%") << bySecondWord + "\"/100%%/Ambertask\""
                             << QByteArray("/100%/Ambertask");
    QTest::newRow("equal") << QStringLiteral("/a=b") << bySecondWord + "\"/a=b/Ambertask\""
                           << QByteArray("/a=b/Ambertask");
    QTest::newRow("dollar") << QStringLiteral("/$x") << QByteArray("\"/\\\\$x/Ambertask\"")
                            << QByteArray("/$x/Ambertask");
    QTest::newRow("quote") << QStringLiteral("/a\"b") << QByteArray("\"/a\\\\\"b/Ambertask\"")
                           << QByteArray("/a\"b/Ambertask");
    QTest::newRow("backslash") << QStringLiteral("/a\\b") << QByteArray("\"/a\\\\\\\\b/Ambertask\"")
                               << QByteArray("/a\\\\b/Ambertask");
    QTest::newRow("umlaut") << QString::fromUtf8("/Bücher") << QByteArray("\"/Bücher/Ambertask\"")
                            << QByteArray("/Bücher/Ambertask");
}

void AutostartEntryTest::specialCharactersOfThePathAreEscaped()
{
    QFETCH(const QString, folder);
    QFETCH(const QByteArray, exec);
    QFETCH(const QByteArray, tryExec);
    writeRunEntry(*m_registry, folder);
    QVERIFY2(entry().contains("\nExec=" + exec + "\n"), entry().constData());
    QVERIFY2(entry().contains("\nTryExec=" + tryExec + "\n"), entry().constData());
}

void AutostartEntryTest::aPathWithALineBreakIsNotEntered()
{
    writeRunEntry(*m_registry, QStringLiteral("/a\nExec=evil"));
    QVERIFY(!QFile::exists(entryFile()));
}

void AutostartEntryTest::anEntryIsReplaced()
{
    writeRunEntry(*m_registry, QStringLiteral("/old"));
    writeRunEntry(*m_registry, QStringLiteral("/new"));
    QVERIFY(entry().contains("\"/new/Ambertask\""));
    QVERIFY(!entry().contains("/old"));
}

void AutostartEntryTest::deletingRemovesTheDesktopEntry()
{
    writeRunEntry(*m_registry, QStringLiteral("/opt"));
    deleteRunEntry(*m_registry);
    QVERIFY(!QFile::exists(entryFile()));
}

void AutostartEntryTest::deletingAMissingEntryIsSilent()
{
    deleteRunEntry(*m_registry);
    QVERIFY(QDir(m_config->path()).isEmpty());
}

void AutostartEntryTest::otherKeysAndHivesDoNotExist()
{
    WriteRegString(*m_registry, 0x80000001, QLatin1String(RunKeyPath), QStringLiteral("Ambertask"),
        QStringLiteral("/x"));
    WriteRegString(*m_registry, RegistryValues::LocalMachine, QStringLiteral("Software\\Other"),
        QStringLiteral("Ambertask"), QStringLiteral("/x"));
    QVERIFY(QDir(m_config->path()).isEmpty());
}

void AutostartEntryTest::aFolderThatCannotBeMadeIsSilent()
{
    QFile blocker(m_config->filePath(QStringLiteral("autostart")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    writeRunEntry(*m_registry, QStringLiteral("/opt"));
    deleteRunEntry(*m_registry);
    QVERIFY(QFileInfo(blocker).isFile());
}

AMBERTASK_TEST_MAIN(AutostartEntryTest)
#include "tst_autostart_entry.moc"

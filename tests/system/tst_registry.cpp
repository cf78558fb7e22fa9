#include "support/MemoryRegistry.h"
#include "support/TestMain.h"
#include "system/Registry.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

class TestRegistry : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { takeNewFolder(); }

    void aTextValueHasNoTerminatingZero();
    void theRunEntryNamesTheProductsExecutableInTheProgramFolder();
    void aFolderThatEndsWithASeparatorYieldsOne();
    void deletingTheRunEntryLeavesNone();

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

void TestRegistry::initTestCase()
{
    // The real location, which each test points to a folder of its own.
    QStandardPaths::setTestModeEnabled(false);
    takeNewFolder();
}

void TestRegistry::takeNewFolder()
{
    m_config = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config->path()));
}

void TestRegistry::aTextValueHasNoTerminatingZero()
{
    MemoryRegistry registry;
    WriteRegString(registry, RegistryValues::LocalMachine, QLatin1String(RunKeyPath),
        QStringLiteral("Ambertask"), QStringLiteral("12345"));
    QCOMPARE(registry.runEntry("Ambertask").data, QByteArray("12345"));
    QCOMPARE(registry.runEntry("Ambertask").data.size(), 5);
    QCOMPARE(registry.runEntry("Ambertask").type, RegistryValues::Text);
}

void TestRegistry::theRunEntryNamesTheProductsExecutableInTheProgramFolder()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/opt/some folder"));
    QCOMPARE(registry.runEntry("Ambertask").data, QByteArray("/opt/some folder/Ambertask"));
}

void TestRegistry::aFolderThatEndsWithASeparatorYieldsOne()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/"));
    QCOMPARE(registry.runEntry("Ambertask").data, QByteArray("/Ambertask"));
}

void TestRegistry::deletingTheRunEntryLeavesNone()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/opt"));
    deleteRunEntry(registry);
    QVERIFY(registry.isEmpty());
}

void TestRegistry::theRunEntryIsADesktopEntry()
{
    writeRunEntry(*m_registry, QStringLiteral("/opt/ambertask"));
    QCOMPARE(entry(),
        QByteArray("[Desktop Entry]\nType=Application\nVersion=1.0\nName=Ambertask\n"
                   "Exec=\"/opt/ambertask/Ambertask\"\nTryExec=/opt/ambertask/Ambertask\nTerminal=false\n"
                   "Icon=ambertask\n"));
}

void TestRegistry::specialCharactersOfThePathAreEscaped_data()
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

void TestRegistry::specialCharactersOfThePathAreEscaped()
{
    QFETCH(const QString, folder);
    QFETCH(const QByteArray, exec);
    QFETCH(const QByteArray, tryExec);
    writeRunEntry(*m_registry, folder);
    QVERIFY2(entry().contains("\nExec=" + exec + "\n"), entry().constData());
    QVERIFY2(entry().contains("\nTryExec=" + tryExec + "\n"), entry().constData());
}

void TestRegistry::aPathWithALineBreakIsNotEntered()
{
    writeRunEntry(*m_registry, QStringLiteral("/a\nExec=evil"));
    QVERIFY(!QFile::exists(entryFile()));
}

void TestRegistry::anEntryIsReplaced()
{
    writeRunEntry(*m_registry, QStringLiteral("/old"));
    writeRunEntry(*m_registry, QStringLiteral("/new"));
    QVERIFY(entry().contains("\"/new/Ambertask\""));
    QVERIFY(!entry().contains("/old"));
}

void TestRegistry::deletingRemovesTheDesktopEntry()
{
    writeRunEntry(*m_registry, QStringLiteral("/opt"));
    deleteRunEntry(*m_registry);
    QVERIFY(!QFile::exists(entryFile()));
}

void TestRegistry::deletingAMissingEntryIsSilent()
{
    deleteRunEntry(*m_registry);
    QVERIFY(QDir(m_config->path()).isEmpty());
}

void TestRegistry::otherKeysAndHivesDoNotExist()
{
    WriteRegString(*m_registry, 0x80000001, QLatin1String(RunKeyPath), QStringLiteral("Ambertask"),
        QStringLiteral("/x"));
    WriteRegString(*m_registry, RegistryValues::LocalMachine, QStringLiteral("Software\\Other"),
        QStringLiteral("Ambertask"), QStringLiteral("/x"));
    QVERIFY(QDir(m_config->path()).isEmpty());
}

void TestRegistry::aFolderThatCannotBeMadeIsSilent()
{
    QFile blocker(m_config->filePath(QStringLiteral("autostart")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    writeRunEntry(*m_registry, QStringLiteral("/opt"));
    deleteRunEntry(*m_registry);
    QVERIFY(QFileInfo(blocker).isFile());
}

AMBERTASK_TEST_MAIN(TestRegistry)
#include "tst_registry.moc"

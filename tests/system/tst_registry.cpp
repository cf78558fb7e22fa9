#include "support/MemoryRegistry.h"
#include "support/TestMain.h"
#include "system/ProgramFolder.h"
#include "system/Registry.h"

#include <QDir>
#include <QTest>

class TestRegistry : public TestCase
{
    Q_OBJECT

private slots:
    void aTextValueHasNoTerminatingZero();
    void theRunEntryNamesTheProductsExecutableInTheProgramFolder();
    void aFolderThatEndsWithASeparatorYieldsOne();
    void deletingTheRunEntryLeavesNone();
};

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
    const QString folder = QDir::toNativeSeparators(QStringLiteral("/opt/some folder/"));
    const QByteArray entry = registry.runEntry("Ambertask").data;
    QVERIFY2(entry.startsWith(folder.toLocal8Bit() + "Ambertask"), entry.constData());
    QCOMPARE(entry, executableIn(QStringLiteral("/opt/some folder")).toLocal8Bit());
}

void TestRegistry::aFolderThatEndsWithASeparatorYieldsOne()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/"));
    const QByteArray entry = registry.runEntry("Ambertask").data;
    QVERIFY2(entry.startsWith(QDir::toNativeSeparators(QStringLiteral("/Ambertask")).toLocal8Bit()),
        entry.constData());
}

void TestRegistry::deletingTheRunEntryLeavesNone()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/opt"));
    deleteRunEntry(registry);
    QVERIFY(registry.isEmpty());
}

AMBERTASK_TEST_MAIN(TestRegistry)
#include "tst_registry.moc"

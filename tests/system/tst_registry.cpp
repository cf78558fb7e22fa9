#include "support/MemoryRegistry.h"
#include "support/TestMain.h"
#include "system/Registry.h"

#include <QDir>
#include <QTest>

namespace
{

/// The path as this platform writes that of an executable.
QByteArray executable(const char* path)
{
    const bool isWindows = QDir::separator() == u'\\';
    return QDir::toNativeSeparators(QLatin1String(path)).toLocal8Bit() + (isWindows ? ".exe" : "");
}

} // namespace

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
    QCOMPARE(registry.runEntry("Ambertask").data, executable("/opt/some folder/Ambertask"));
}

void TestRegistry::aFolderThatEndsWithASeparatorYieldsOne()
{
    MemoryRegistry registry;
    writeRunEntry(registry, QStringLiteral("/"));
    QCOMPARE(registry.runEntry("Ambertask").data, executable("/Ambertask"));
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

#include "system/Registry.h"

#include "system/ProgramFolder.h"

void WriteRegString(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName,
    const QString& valueText)
{
    registry.setValue(hive, keyPath, valueName.toLocal8Bit(), RegistryValues::Text, valueText.toLocal8Bit());
}

void DeleteRegValue(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName)
{
    registry.deleteValue(hive, keyPath, valueName.toLocal8Bit());
}

void writeRunEntry(Registry& registry, const QString& programFolder)
{
    WriteRegString(registry, RegistryValues::LocalMachine, QLatin1String(RunKeyPath),
        QLatin1String(ProductName), executableIn(programFolder));
}

void deleteRunEntry(Registry& registry)
{
    DeleteRegValue(
        registry, RegistryValues::LocalMachine, QLatin1String(RunKeyPath), QLatin1String(ProductName));
}

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <memory>
#include <optional>

/// Predefined root keys and value types, as the Windows registry numbers them.
namespace RegistryValues
{
inline constexpr quint32 LocalMachine = 0x80000002; ///< HKEY_LOCAL_MACHINE
inline constexpr quint32 Text = 1; ///< REG_SZ
inline constexpr quint32 DoubleWord = 4; ///< REG_DWORD
inline constexpr quint32 AllAccess = 0x2003f; ///< KEY_ALL_ACCESS
} // namespace RegistryValues

/// The key whose values start programs with the session.
inline constexpr char RunKeyPath[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

/// A value and its type.
struct RegistryValue {
    quint32 type = 0;
    QByteArray data;
    bool operator==(const RegistryValue&) const = default;
};

/// An open key; destroying it closes it.
class RegistryKey
{
public:
    RegistryKey() = default;
    virtual ~RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    /// The value of that name; none when it does not exist or is longer than `capacity` bytes.
    virtual std::optional<RegistryValue> query(const QByteArray& name, qsizetype capacity) const = 0;
};

/// The machine's store of settings: keys with named values. No function reports an error.
class Registry
{
public:
    Registry() = default;
    virtual ~Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

    /// Creates or opens `keyPath` under `hive` and sets the value. `name` and `data` are in the system's
    /// 8-bit code page.
    virtual void setValue(quint32 hive, const QString& keyPath, const QByteArray& name, quint32 type,
        const QByteArray& data) = 0;
    /// Opens `keyPath` under `hive` and deletes the value.
    virtual void deleteValue(quint32 hive, const QString& keyPath, const QByteArray& name) = 0;
    /// Opens `keyPath` under `hive` with the given access rights; null when it does not exist or access is
    /// denied.
    virtual std::unique_ptr<RegistryKey> openKey(quint32 hive, const QString& keyPath, quint32 access) = 0;
};

/// Sets a text value, converted to the system's 8-bit code page, without a terminating zero. Errors are
/// ignored.
void WriteRegString(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName,
    const QString& valueText);
/// Deletes a value. A missing key or value is not reported.
void DeleteRegValue(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName);

/// Registers the program to start with the session: a value named after the product that holds the
/// executable's path, made from the product's name whatever the running file is called.
void writeRunEntry(Registry& registry, const QString& programFolder);
/// Removes that entry.
void deleteRunEntry(Registry& registry);

/// The registry of this machine: the real one on Windows. Elsewhere only the Run key exists, as desktop
/// entries in the user's autostart folder (XDG Desktop Application Autostart).
std::unique_ptr<Registry> makeSystemRegistry();

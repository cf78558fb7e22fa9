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

/// The key whose values start programs with the user's session.
inline constexpr char RunKeyPath[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

/// What a key holds under a name.
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

    /// The value of that name; nothing when there is none, or when its data is longer than `capacity` bytes.
    virtual std::optional<RegistryValue> query(const QByteArray& name, qsizetype capacity) const = 0;
};

/// The store of settings of the machine: keys that hold named values. Nothing here reports an error.
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
    /// Opens `keyPath` under `hive` with the access rights asked for; null when there is no such key or it
    /// may not be used so.
    virtual std::unique_ptr<RegistryKey> openKey(quint32 hive, const QString& keyPath, quint32 access) = 0;
};

/// Sets a plain text value, converted to the system's 8-bit code page; its terminating zero is not part of
/// the data. Errors are ignored.
void WriteRegString(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName,
    const QString& valueText);
/// Deletes a value. A missing key or value is not reported.
void DeleteRegValue(Registry& registry, quint32 hive, const QString& keyPath, const QString& valueName);

/// Starts the program with the user's session from now on: the value named after the product holds the
/// executable's path, built from the product's name whatever the running file is called.
void writeRunEntry(Registry& registry, const QString& programFolder);
/// No longer starts the program with the session.
void deleteRunEntry(Registry& registry);

/// The registry of this machine: the real one on Windows; elsewhere the Run key alone, as desktop entries in
/// the user's autostart folder (XDG Desktop Application Autostart), and no other key exists.
std::unique_ptr<Registry> makeSystemRegistry();

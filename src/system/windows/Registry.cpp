#include "system/Registry.h"

#include "system/windows/Api.h"

namespace
{

class WindowsRegistryKey final : public RegistryKey
{
public:
    explicit WindowsRegistryKey(HKEY key) : m_key(key) { }
    ~WindowsRegistryKey() override { RegCloseKey(m_key); }

    std::optional<RegistryValue> query(const QByteArray& name, qsizetype capacity) const override
    {
        QByteArray data(capacity, '\0');
        DWORD type = 0;
        auto size = static_cast<DWORD>(data.size());
        const LONG failure = RegQueryValueExA(
            m_key, name.constData(), nullptr, &type, reinterpret_cast<BYTE*>(data.data()), &size);
        if (failure != ERROR_SUCCESS) {
            return std::nullopt;
        }
        return RegistryValue{type, data.left(static_cast<qsizetype>(size))};
    }

private:
    HKEY m_key;
};

class WindowsRegistry final : public Registry
{
public:
    void setValue(quint32 hive, const QString& keyPath, const QByteArray& name, quint32 type,
        const QByteArray& data) override
    {
        HKEY key = nullptr;
        if (RegCreateKeyA(rootKey(hive), keyPath.toLocal8Bit().constData(), &key) == ERROR_SUCCESS) {
            RegSetValueExA(key, name.constData(), 0, type, reinterpret_cast<const BYTE*>(data.constData()),
                static_cast<DWORD>(data.size()));
            RegCloseKey(key);
        }
    }
    void deleteValue(quint32 hive, const QString& keyPath, const QByteArray& name) override
    {
        HKEY key = nullptr;
        if (RegOpenKeyA(rootKey(hive), keyPath.toLocal8Bit().constData(), &key) == ERROR_SUCCESS) {
            RegDeleteValueA(key, name.constData());
            RegCloseKey(key);
        }
    }
    std::unique_ptr<RegistryKey> openKey(quint32 hive, const QString& keyPath, quint32 access) override
    {
        HKEY key = nullptr;
        const LONG failure = RegOpenKeyExA(rootKey(hive), keyPath.toLocal8Bit().constData(), 0, access, &key);
        return failure == ERROR_SUCCESS ? std::make_unique<WindowsRegistryKey>(key) : nullptr;
    }

private:
    static HKEY rootKey(quint32 hive)
    {
        return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG>(hive)));
    }
};

} // namespace

std::unique_ptr<Registry> makeSystemRegistry()
{
    return std::make_unique<WindowsRegistry>();
}

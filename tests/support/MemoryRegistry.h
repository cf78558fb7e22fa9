#pragma once

#include "system/Registry.h"

#include <QMap>
#include <QStringList>

/// A registry that lives in a test; keys are "hive\path". A key exists as long as it holds a value.
class MemoryRegistry final : public Registry
{
public:
    using Value = RegistryValue;

    void setValue(quint32 hive, const QString& keyPath, const QByteArray& name, quint32 type,
        const QByteArray& data) override
    {
        m_keys[keyOf(hive, keyPath)][name] = {type, data};
    }
    void deleteValue(quint32 hive, const QString& keyPath, const QByteArray& name) override
    {
        const QString key = keyOf(hive, keyPath);
        m_keys[key].remove(name);
        if (m_keys[key].isEmpty()) {
            m_keys.remove(key);
        }
    }
    std::unique_ptr<RegistryKey> openKey(quint32 hive, const QString& keyPath, quint32 access) override
    {
        const QString key = keyOf(hive, keyPath);
        opened.append(QStringLiteral("%1 %2").arg(key).arg(access, 0, 16));
        if (!m_keys.contains(key) || (access & ~allowedAccess) != 0) {
            return nullptr;
        }
        return std::make_unique<Key>(m_keys[key], openKeys);
    }

    bool isEmpty() const { return m_keys.isEmpty(); }
    /// The value of that name under the Run key; of type 0 when there is none.
    Value runEntry(const QByteArray& name) const
    {
        return m_keys.value(keyOf(RegistryValues::LocalMachine, QLatin1String(RunKeyPath))).value(name);
    }

    /// The access rights that this account has.
    quint32 allowedAccess = RegistryValues::AllAccess;
    /// The keys that were opened, each with the access rights in hexadecimal.
    QStringList opened;
    /// How many keys are open now.
    int openKeys = 0;

private:
    using Values = QMap<QByteArray, Value>;

    class Key final : public RegistryKey
    {
    public:
        Key(Values values, int& openKeys) : m_values(std::move(values)), m_openKeys(openKeys)
        {
            ++m_openKeys;
        }
        ~Key() override { --m_openKeys; }
        std::optional<RegistryValue> query(const QByteArray& name, qsizetype capacity) const override
        {
            const auto found = m_values.find(name);
            if (found == m_values.end() || found->data.size() > capacity) {
                return std::nullopt;
            }
            return *found;
        }

    private:
        Values m_values;
        int& m_openKeys;
    };

    static QString keyOf(quint32 hive, const QString& keyPath)
    {
        return QString::number(hive, 16) + u'\\' + keyPath;
    }

    QMap<QString, Values> m_keys;
};

#pragma once

#include "platform/Registry.h"

#include <QMap>

/// A registry that lives in a test; keys are "hive\path".
class MemoryRegistry final : public Registry
{
public:
    struct Value {
        quint32 type = 0;
        QByteArray data;
        bool operator==(const Value&) const = default;
    };

    void setValue(quint32 hive, const QString& keyPath, const QByteArray& name, quint32 type,
        const QByteArray& data) override
    {
        m_values[{keyOf(hive, keyPath), name}] = {type, data};
    }
    void deleteValue(quint32 hive, const QString& keyPath, const QByteArray& name) override
    {
        m_values.remove({keyOf(hive, keyPath), name});
    }

    bool isEmpty() const { return m_values.isEmpty(); }
    /// The value of that name under the Run key; of type 0 when there is none.
    Value runEntry(const QByteArray& name) const
    {
        return m_values.value({keyOf(RegistryValues::LocalMachine, QLatin1String(RunKeyPath)), name});
    }

private:
    static QString keyOf(quint32 hive, const QString& keyPath)
    {
        return QString::number(hive, 16) + u'\\' + keyPath;
    }

    QMap<std::pair<QString, QByteArray>, Value> m_values;
};

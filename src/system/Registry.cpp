#include "system/Registry.h"

#include "system/FileReplace.h"
#include "system/ProgramFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

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
    QString program = pathIn(programFolder, QLatin1String(ProductName));
#ifdef Q_OS_WIN
    program = QDir::toNativeSeparators(program) + QStringLiteral(".exe");
#endif
    WriteRegString(registry, RegistryValues::LocalMachine, QLatin1String(RunKeyPath),
        QLatin1String(ProductName), program);
}

void deleteRunEntry(Registry& registry)
{
    DeleteRegValue(
        registry, RegistryValues::LocalMachine, QLatin1String(RunKeyPath), QLatin1String(ProductName));
}

#ifdef Q_OS_WIN

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

#else

namespace
{

// A value of type string in the Desktop Entry format.
QString stringValue(QString text)
{
    return text.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
}

// An argument of its Exec key: in double quotes, four characters escaped, "%" doubled.
QString execArgument(const QString& text)
{
    QString quoted;
    for (const QChar c : text) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\') {
            quoted += u'\\';
        }
        quoted += c;
        if (c == u'%') {
            quoted += c;
        }
    }
    return u'"' + quoted + u'"';
}

QString execValue(const QString& path)
{
    QString command = execArgument(path);
    // The first word may hold no "=", and common readers look the program up before they turn "%%" into
    // "%".
    if (path.contains(u'=') || path.contains(u'%')) {
        command.prepend(QStringLiteral("/bin/sh -c ") + execArgument(QStringLiteral("exec \"$0\"")) + u' ');
    }
    return stringValue(command);
}

class AutostartRegistry final : public Registry
{
public:
    void setValue(quint32 hive, const QString& keyPath, const QByteArray& name, quint32 /*type*/,
        const QByteArray& data) override
    {
        const QString path = QString::fromLocal8Bit(data);
        // A desktop entry cannot hold a line break.
        if (!isRunKey(hive, keyPath) || path.contains(u'\n') || path.contains(u'\r')) {
            return;
        }
        const QString program = QString::fromLocal8Bit(name);
        // With TryExec no desktop complains about a program that was removed.
        const QString text = QStringLiteral("[Desktop Entry]\n"
                                            "Type=Application\n"
                                            "Version=1.0\n"
                                            "Name=%1\n"
                                            "Exec=%2\n"
                                            "TryExec=%3\n"
                                            "Terminal=false\n")
                                 .arg(program, execValue(path), stringValue(path));
        // Session settings show the icon where it is installed.
        const QString icon = QStringLiteral("Icon=%1\n").arg(program.toLower());
        try {
            const QString file = entryFile(name);
            makeFolder(QFileInfo(file).path());
            replaceByBytes((text + icon).toUtf8(), file, PublicFile);
        } catch (const FileError&) {
            // Without permission to write there is no entry, silently.
        }
    }

    void deleteValue(quint32 hive, const QString& keyPath, const QByteArray& name) override
    {
        if (!isRunKey(hive, keyPath)) {
            return;
        }
        try {
            removeFile(entryFile(name));
        } catch (const FileError&) {
            // As above.
        }
    }

    std::unique_ptr<RegistryKey> openKey(
        quint32 /*hive*/, const QString& /*keyPath*/, quint32 /*access*/) override
    {
        return nullptr;
    }

private:
    static bool isRunKey(quint32 hive, const QString& keyPath)
    {
        return hive == RegistryValues::LocalMachine
            && keyPath.compare(QLatin1String(RunKeyPath), Qt::CaseInsensitive) == 0;
    }
    static QString entryFile(const QByteArray& name)
    {
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + QStringLiteral("/autostart/") + QString::fromLocal8Bit(name) + QStringLiteral(".desktop");
    }
};

} // namespace

std::unique_ptr<Registry> makeSystemRegistry()
{
    return std::make_unique<AutostartRegistry>();
}

#endif

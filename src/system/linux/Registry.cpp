#include "system/Registry.h"

#include "system/FileReplace.h"

#include <QFileInfo>
#include <QStandardPaths>

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

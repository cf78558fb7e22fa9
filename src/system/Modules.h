#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The modules of the program, which are loaded on first use, and the helper programs beside them. Their
/// files are held open from the start: when an upgrade replaces them, a running copy goes on with its own
/// version, whose interfaces fit. They lie in a folder of their version, so that a start during an upgrade
/// finds none rather than another version's. Interface thread only.
class Modules
{
public:
    /// Opens the files of the modules `names` and of the `programs` in `folder`, where the platform can;
    /// that takes a few microseconds and reads nothing. Names are without the platform's file ending.
    Modules(const QString& folder, const QStringList& names, const QStringList& programs = {});
    ~Modules();
    Modules(const Modules&) = delete;
    Modules& operator=(const Modules&) = delete;

    /// The function `symbol` of a module, which then stays loaded; null when there is none. A module that
    /// was not there before is looked for again.
    template <typename Function> Function resolve(const QString& name, const char* symbol)
    {
        return reinterpret_cast<Function>(resolveAny(name, symbol));
    }

    /// The path under which that helper program is to be started, valid while this object lives.
    QString program(const QString& name) const;

private:
    /// The name of a module's file.
    static QString moduleFile(const QString& name);
    /// The name of a program's file.
    static QString programFile(const QString& name);
    void hold(const QString& name, const QString& file);
    QFunctionPointer resolveAny(const QString& name, const char* symbol);

    struct Held {
        qintptr handle; ///< of the open file
        bool loaded = false;
    };

    QString m_folder;
    QHash<QString, Held> m_held; ///< by name
};

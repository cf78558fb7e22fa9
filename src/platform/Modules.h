#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The modules of the program, loaded at their first use, and the programs beside them that it starts. Their
/// files are held open from the start on: a copy that runs on while another version takes their place uses
/// its own all the same, and never that other version's. Interface thread only.
class Modules
{
public:
    /// Opens, where the platform can, the files of the modules `names` and of the `programs` in `folder`,
    /// which costs a few microseconds; nothing is read yet. Names are without the ending that the platform
    /// gives to files.
    Modules(const QString& folder, const QStringList& names, const QStringList& programs = {});
    ~Modules();
    Modules(const Modules&) = delete;
    Modules& operator=(const Modules&) = delete;

    /// The function `symbol` of a module, which stays loaded from then on; null when there is none. A module
    /// that has not been there before is looked for again.
    template <typename Function> Function resolve(const QString& name, const char* symbol)
    {
        return reinterpret_cast<Function>(resolveAny(name, symbol));
    }

    /// The path by which the program of that name is started, while this object lives.
    QString program(const QString& name) const;

private:
    void hold(const QString& name, const QString& file);
    QFunctionPointer resolveAny(const QString& name, const char* symbol);

    struct Held {
        int handle; ///< of the open file
        bool loaded = false;
    };

    QString m_folder;
    QHash<QString, Held> m_held; ///< by name
};

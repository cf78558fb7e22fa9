#include "system/Modules.h"

#include "system/ProgramFolder.h"

#include <QFile>
#include <QLibrary>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QString Modules::moduleFile(const QString& name)
{
    return name + QStringLiteral(".so");
}

QString Modules::programFile(const QString& name)
{
    return name;
}

void Modules::hold(const QString& name, const QString& file)
{
    const QByteArray path = QFile::encodeName(pathIn(m_folder, file));
    const int handle = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle >= 0) {
        m_held.insert(name, {handle});
    }
}

Modules::~Modules()
{
    for (const Held& module : qAsConst(m_held)) {
        // The dynamic loader knows a loaded module by this handle's path: its number must not be used
        // again.
        if (!module.loaded) {
            ::close(static_cast<int>(module.handle));
        }
    }
}

QFunctionPointer Modules::resolveAny(const QString& name, const char* symbol)
{
    const auto held = m_held.find(name);
    if (held == m_held.end()) {
        return QLibrary(pathIn(m_folder, name)).resolve(symbol);
    }
    // By the handle, not by the path, where another version may lie by now.
    QLibrary module(QStringLiteral("/proc/self/fd/%1").arg(held->handle));
    held->loaded = module.load() || held->loaded;
    return module.resolve(symbol);
}

QString Modules::program(const QString& name) const
{
    QString path = pathIn(m_folder, name);
    const auto held = m_held.find(name);
    struct stat now = {};
    struct stat then = {};
    if (held != m_held.end() && ::fstat(static_cast<int>(held->handle), &then) == 0
        && (::stat(QFile::encodeName(path).constData(), &now) != 0 || now.st_ino != then.st_ino
            || now.st_dev != then.st_dev)) {
        return QStringLiteral("/proc/self/fd/%1").arg(held->handle);
    }
    return path;
}

#include "system/Modules.h"

#include "system/ProgramFolder.h"

#include <QFile>
#include <QLibrary>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

Modules::Modules(const QString& folder, const QStringList& names, const QStringList& programs)
    : m_folder(folder)
{
    for (const QString& name : names) {
        hold(name, name + QStringLiteral(".so"));
    }
    for (const QString& name : programs) {
        hold(name, name);
    }
}

void Modules::hold(const QString& name, const QString& file)
{
#ifdef Q_OS_LINUX
    const QByteArray path = QFile::encodeName(pathIn(m_folder, file));
    const int handle = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle >= 0) {
        m_held.insert(name, {handle});
    }
#else
    Q_UNUSED(name);
    Q_UNUSED(file);
#endif
}

Modules::~Modules()
{
#ifdef Q_OS_LINUX
    for (const Held& module : qAsConst(m_held)) {
        // The dynamic loader knows a loaded module by this handle's path: its number must not be used
        // again.
        if (!module.loaded) {
            ::close(module.handle);
        }
    }
#endif
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
#ifdef Q_OS_LINUX
    const auto held = m_held.find(name);
    struct stat now = {};
    struct stat then = {};
    if (held != m_held.end() && ::fstat(held->handle, &then) == 0
        && (::stat(QFile::encodeName(path).constData(), &now) != 0 || now.st_ino != then.st_ino
            || now.st_dev != then.st_dev)) {
        return QStringLiteral("/proc/self/fd/%1").arg(held->handle);
    }
#endif
    return path;
}

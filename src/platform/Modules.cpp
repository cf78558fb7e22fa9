#include "platform/Modules.h"

#include "platform/ProgramFolder.h"

#include <QFile>
#include <QLibrary>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

Modules::Modules(const QString& folder, const QStringList& names) : m_folder(folder)
{
#ifdef Q_OS_LINUX
    for (const QString& name : names) {
        const QByteArray path = QFile::encodeName(pathIn(folder, name) + QStringLiteral(".so"));
        const int handle = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
        if (handle >= 0) {
            m_held.insert(name, {handle});
        }
    }
#else
    Q_UNUSED(names);
#endif
}

Modules::~Modules()
{
#ifdef Q_OS_LINUX
    for (const Held& module : qAsConst(m_held)) {
        // The loader knows a loaded one by the name of its handle, which must not become another file's.
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
    // Not by its path, where another version may lie by now.
    QLibrary module(QStringLiteral("/proc/self/fd/%1").arg(held->handle));
    held->loaded = module.load() || held->loaded;
    return module.resolve(symbol);
}

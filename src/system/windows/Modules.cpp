#include "system/Modules.h"

#include "system/ProgramFolder.h"
#include "system/windows/Api.h"

#include <QLibrary>

QString Modules::moduleFile(const QString& name)
{
    return name + QStringLiteral(".dll");
}

QString Modules::programFile(const QString& name)
{
    return name + QStringLiteral(".exe");
}

void Modules::hold(const QString& name, const QString& file)
{
    // Nobody can replace a file that is open like this.
    if (SystemHandle handle = openExisting(pathIn(m_folder, file), GENERIC_READ, FILE_SHARE_READ)) {
        m_held.insert(name, {reinterpret_cast<qintptr>(handle.release())});
    }
}

Modules::~Modules()
{
    for (const Held& module : qAsConst(m_held)) {
        CloseHandle(reinterpret_cast<HANDLE>(module.handle));
    }
}

QFunctionPointer Modules::resolveAny(const QString& name, const char* symbol)
{
    return QLibrary(pathIn(m_folder, moduleFile(name))).resolve(symbol);
}

QString Modules::program(const QString& name) const
{
    return pathIn(m_folder, programFile(name));
}

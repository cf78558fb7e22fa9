#include "system/Modules.h"

Modules::Modules(const QString& folder, const QStringList& names, const QStringList& programs)
    : m_folder(folder)
{
    for (const QString& name : names) {
        hold(name, moduleFile(name));
    }
    for (const QString& name : programs) {
        hold(name, programFile(name));
    }
}

#include "system/LockFile.h"

#include "system/FileError.h"

LockFile::LockFile(const QString& path, IfHeld ifHeld) : m_path(path)
{
    while (!settle(ifHeld == IfHeld::Wait)) { }
}

QString LockFile::failure() const
{
    if (m_isNoFile) {
        return FileError(m_path, FileError::tr("it is not a file")).text();
    }
    return m_error == 0 ? QString() : FileError(m_path, qt_error_string(m_error)).text();
}

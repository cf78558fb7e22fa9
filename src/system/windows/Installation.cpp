#include "system/Installation.h"

#include "system/windows/Api.h"

#include <QDir>

QString runningExecutable()
{
    // The system has no path that is longer.
    constexpr DWORD MostLetters = 32'768;
    std::wstring path(MostLetters, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MostLetters));
    return QDir::fromNativeSeparators(QString::fromStdWString(path));
}

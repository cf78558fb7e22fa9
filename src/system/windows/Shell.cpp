#include "system/Shell.h"

#include "system/windows/Api.h"

#include <QProcess>

namespace
{

/// `show` says how its first window is shown, as for ShowWindow(); the system gives the focus to that
/// window.
bool startDetached(const QString& file, WORD show)
{
    const QStringList command = commandOf(file);
    if (command.isEmpty()) {
        return false;
    }
    QProcess process;
    process.setProgram(command.first());
    process.setArguments(command.mid(1));
    process.setCreateProcessArgumentsModifier([show](QProcess::CreateProcessArguments* start) {
        // Qt would hide the window of a batch file, and let the program inherit open files.
        start->flags = (start->flags & ~DWORD{CREATE_NO_WINDOW}) | CREATE_NEW_CONSOLE;
        start->inheritHandles = FALSE;
        start->startupInfo->dwFlags =
            (start->startupInfo->dwFlags & ~DWORD{STARTF_USESTDHANDLES}) | STARTF_USESHOWWINDOW;
        start->startupInfo->wShowWindow = show;
    });
    return process.startDetached();
}

} // namespace

bool DesktopShell::startNormal(const QString& file)
{
    return startDetached(file, SW_SHOWNORMAL);
}

bool DesktopShell::startMinimized(const QString& file)
{
    return startDetached(file, SW_SHOWMINIMIZED);
}

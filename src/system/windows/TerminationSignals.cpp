#include "system/TerminationSignals.h"

#include "system/windows/Api.h"

#include <mutex>

namespace
{

// Static, because a console handler can reach nothing else.
std::mutex guard;
TerminationSignals* listener = nullptr;

/// Runs in a thread of its own.
BOOL WINAPI passOn(DWORD event)
{
    const std::scoped_lock lock(guard);
    // When the console itself goes, the process ends at once: what is committed is on the disk.
    if (listener == nullptr || (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)) {
        return FALSE;
    }
    QMetaObject::invokeMethod(listener, &TerminationSignals::terminationRequested, Qt::QueuedConnection);
    return TRUE;
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent)
{
    const std::scoped_lock lock(guard);
    listener = this;
    SetConsoleCtrlHandler(passOn, TRUE);
}

TerminationSignals::~TerminationSignals()
{
    SetConsoleCtrlHandler(passOn, FALSE);
    const std::scoped_lock lock(guard);
    listener = nullptr;
}

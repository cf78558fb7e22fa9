#include "system/TerminationSignals.h"

#include "system/Installation.h"
#include "system/windows/OwnerOnly.h"

#include <QFileInfo>
#include <QWinEventNotifier>
#include <functional>
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

/// The event that the installer sets before it replaces the program in this folder. A backslash is none of a
/// name.
std::wstring nameOfEndEvent()
{
    return (QStringLiteral("Local\\Ambertask-end-") + QFileInfo(runningExecutable()).path().toLower())
        .toStdWString();
}

/// Calls `end` when somebody of this user's session sets the event of that name. Nothing listens where the
/// system refuses the event.
void listenForEnd(QObject* owner, const std::function<void()>& end)
{
    const OwnerOnly security(OwnerOnly::Of::Mutex);
    SystemHandle event(CreateEventW(security.attributes(), FALSE, FALSE, nameOfEndEvent().c_str()));
    if (event == nullptr) {
        return;
    }
    auto* notifier = new QWinEventNotifier(event.get(), owner);
    QObject::connect(notifier, &QWinEventNotifier::activated, owner, end);
    // The installer waits for the end of the process, which closes it.
    event.release();
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent)
{
    listenForEnd(this, [this] { emit terminationRequested(); });
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

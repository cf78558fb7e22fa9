#include "widgets/WindowManager.h"

#include "system/windows/Api.h"

#include <QGuiApplication>
#include <QWindow>
#include <array>
#include <string_view>

namespace
{

constexpr UINT InPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

HWND handleOf(const QWindow& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

std::wstring_view classOf(HWND window, std::array<wchar_t, 64>& name)
{
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return {name.data(), static_cast<std::size_t>(length)};
}

/// Whether that is the desktop behind all windows, which takes the keyboard when no window has it.
bool isDesktop(HWND window)
{
    std::array<wchar_t, 64> name{};
    const std::wstring_view windowClass = classOf(window, name);
    return window == GetShellWindow() || window == GetDesktopWindow() || windowClass == L"WorkerW"
        || windowClass == L"Progman";
}

BOOL CALLBACK cancelIfDialog(HWND window, LPARAM)
{
    std::array<wchar_t, 64> name{};
    if (classOf(window, name) == L"#32770" && IsWindowVisible(window)) {
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

} // namespace

bool isKeyboardTaken()
{
    const HWND front = GetForegroundWindow();
    return QGuiApplication::focusWindow() != nullptr
        || (front != nullptr && IsWindowVisible(front) && !isDesktop(front));
}

bool isManaged(const QWindow& /*window*/)
{
    return true;
}

void acceptKeyboard(QWindow& /*window*/, bool /*accepts*/)
{
    // The system activates no window that is shown without.
}

void giveKeyboard(QWindow& window)
{
    window.requestActivate();
}

void putInFront(QWindow& window)
{
    // The top is below the window of the program that the user works with.
    if (!window.flags().testFlag(Qt::WindowStaysOnTopHint)) {
        SetWindowPos(handleOf(window), HWND_TOPMOST, 0, 0, 0, 0, InPlace);
        SetWindowPos(handleOf(window), HWND_NOTOPMOST, 0, 0, 0, 0, InPlace);
    }
    window.raise();
}

void setStaysOnTop(QWindow& window, bool on)
{
    const HWND handle = handleOf(window);
    // Workaround: QWindow::setFlag() of Qt 6.4.2 makes the style anew and forgets these.
    const LONG_PTR kept = GetWindowLongPtrW(handle, GWL_STYLE) & (WS_MAXIMIZE | WS_MINIMIZE);
    window.setFlag(Qt::WindowStaysOnTopHint, on);
    if (kept != 0) {
        SetWindowLongPtrW(handle, GWL_STYLE, GetWindowLongPtrW(handle, GWL_STYLE) | kept);
    }
    SetWindowPos(handle, on ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, InPlace);
}

void cancelSystemDialogs()
{
    EnumThreadWindows(GetCurrentThreadId(), cancelIfDialog, 0);
}

bool tellsDoubleClicks(const QRect& /*trayIcon*/)
{
    // Windows does so wherever the icon is, and before the double click of a single one.
    return true;
}

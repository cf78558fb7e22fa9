#include "widgets/CloseBox.h"

#include "widgets/DesktopLimits.h"

#include <QCloseEvent>
#include <QGuiApplication>

bool isCloseByUser(const QCloseEvent& event)
{
    // Workaround: on Wayland Qt 6.4.2 tells of a close box as if the program itself closed the window, which
    // it does with none that asks here (tests/desktop/test_wayland.py).
    const bool isByUser = event.spontaneous() || desktopPlacesWindows(QGuiApplication::platformName());
    return isByUser && !qGuiApp->isSavingSession();
}

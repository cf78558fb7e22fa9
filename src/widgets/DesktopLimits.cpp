#include "widgets/DesktopLimits.h"

bool desktopPlacesWindows(const QString& platform)
{
    // "wayland", or "wayland-egl" when somebody names it so.
    return platform.startsWith(QLatin1String("wayland"));
}

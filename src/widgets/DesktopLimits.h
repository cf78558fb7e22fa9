#pragma once

#include <QString>

/// Whether the desktop alone decides where a window lies: a program's windows can neither come to the front
/// nor stay on top nor choose their place, and a new window may take the keyboard from any other. `platform`
/// is the name of Qt's platform plugin, as QGuiApplication::platformName().
bool desktopPlacesWindows(const QString& platform);

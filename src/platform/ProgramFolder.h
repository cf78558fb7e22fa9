#pragma once

#include <QString>

/// The product's name: of the executable, of the autostart entry, of the application's title.
inline constexpr char ProductName[] = "Ambertask";

/// The folder that holds data.dat, Skins, sounds and custom icons: that of the running executable, with links
/// resolved. Needs no application object.
QString findProgramFolder();

/// `folder` and `name` with exactly one separator between them.
QString pathIn(const QString& folder, const QString& name);

/// Notes that the program has been started on this machine. True when no earlier start had been noted.
bool noteFirstStart();

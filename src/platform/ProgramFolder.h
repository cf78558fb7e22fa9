#pragma once

#include <QString>

struct Installation;

/// The product's name: of the executable, of the autostart entry, of the application's title.
inline constexpr char ProductName[] = "Ambertask";
/// The name, without its ending, of the desktop entry of an installed program: by it a desktop finds the icon
/// of its windows.
inline constexpr char DesktopEntryName[] = "example.ambertask.ambertask";
/// All tasks, categories and settings; what makes a folder a program folder.
inline constexpr char DataFileName[] = "data.dat";

/// The folder of the user's own data (XDG data home), below which an installed program keeps its folder.
QString userDataFolder();

/// The folder of what can be made anew at any time (XDG cache home).
QString userCacheFolder();

/// The folder that holds data.dat and what the user has added: the installation's, or one of the user's own
/// in the folder `userData`.
QString programFolderOf(const Installation& installation, const QString& userData);

/// Makes the user's program folder of an installed program: with the data.dat that is shipped and a link to
/// the executable. It appears complete or not at all. Nothing happens when there is anything of that name, a
/// link that leads nowhere included, nor where nothing is shipped elsewhere. Throws FileError.
void makeProgramFolder(const Installation& installation, const QString& programFolder);

/// Points the link in the program folder of an installed program to the executable. Anything but a link that
/// has its name stays. A file system without links goes without: it serves the start with the session alone.
/// Only while no other copy runs.
void pointToExecutable(const Installation& installation, const QString& programFolder);

/// `folder` and `name` with exactly one separator between them.
QString pathIn(const QString& folder, const QString& name);

/// Notes that the program has been started on this machine. True when no earlier start had been noted.
bool noteFirstStart();

#pragma once

#include <QString>

struct Installation;

/// The product's name: of the executable, the autostart entry and the application's title.
inline constexpr char ProductName[] = "Ambertask";
/// The base name of an installed program's desktop entry; desktops find the icon of the windows by it.
inline constexpr char DesktopEntryName[] = "example.ambertask.ambertask";
/// All tasks, categories and settings. A folder that holds it is a program folder.
inline constexpr char DataFileName[] = "data.dat";
/// The data file of a first start, in an unpacked archive that is a program folder.
inline constexpr char NewDataFileName[] = "data.new";

/// The folder for the user's data (XDG data home; on Windows the local application data); an installed
/// program keeps its folder in it.
QString userDataFolder();

/// The folder for what can be made again at any time (XDG cache home; on Windows the local application data).
QString userCacheFolder();

/// The folder for what the program remembers on this machine between its starts (below the XDG
/// state home; on Windows below the local application data).
QString userStateFolder();

/// The path of the program in its folder, as the system writes it: made from the product's name, whatever
/// the running file is called.
QString executableIn(const QString& programFolder);

/// The folder that holds data.dat and what the user has added: the installation's own, or the user's in
/// `userData`.
QString programFolderOf(const Installation& installation, const QString& userData);

/// Makes the user's program folder for an installed program, with the shipped data.dat and a link to the
/// executable. It appears complete or not at all. Does nothing when something of that name exists, even a
/// broken link. Where nothing is shipped elsewhere, NewDataFileName of the folder becomes data.dat unless
/// there is one. Throws FileError.
void makeProgramFolder(const Installation& installation, const QString& programFolder);

/// Points the link `Ambertask` in the user's program folder to the executable. Anything of that name that
/// is not a link stays. On a file system without links there is none: only the start with the session uses
/// it. Only while no other copy runs.
void pointToExecutable(const Installation& installation, const QString& programFolder);

/// `folder` and `name` with exactly one separator between them.
QString pathIn(const QString& folder, const QString& name);

/// Notes that the program has been started on this machine. True when no earlier start had been noted.
bool noteFirstStart();

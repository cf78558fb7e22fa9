#pragma once

#include <QString>

/// Where the files of the program are. All paths are absolute.
struct Installation {
    QString executable; ///< with links resolved
    QString moduleFolder; ///< of the modules that are loaded on first use
    /// Skins, sounds, help and the data.dat of a first start. Empty where they lie in the program folder
    /// beside the executable (build tree).
    QString shippedFolder;
    /// The program folder if it is part of the installation: the executable's folder, or a prefix that
    /// holds data.dat. Empty where each user has a folder of their own.
    QString programFolder;

    bool operator==(const Installation&) const = default;
};

/// The installation that `executable` belongs to. It is an installed one when the executable lies in a
/// prefix's folder for executables and the prefix has the folder of shipped files.
Installation installationOf(const QString& executable);

/// The file of the running process, with links resolved. Needs no application object.
QString runningExecutable();

/// The installation of the running program. Needs no application object.
Installation runningInstallation();

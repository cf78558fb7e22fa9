#pragma once

#include <QString>

/// Where the files of a program lie. All paths are absolute.
struct Installation {
    QString executable; ///< with links resolved
    QString moduleFolder; ///< of the modules that are loaded at their first use
    /// Skins, sounds, help and the data.dat of a first start. Empty where they lie in the program folder,
    /// beside the executable (build tree).
    QString shippedFolder;
    /// The program folder that the installation itself is: the executable's, or a prefix that holds data.dat.
    /// Empty where each user has one of their own.
    QString programFolder;

    bool operator==(const Installation&) const = default;
};

/// The installation that `executable` is part of: one below a prefix when its folder is the prefix's folder
/// for executables and that of what is shipped is there.
Installation installationOf(const QString& executable);

/// That of the running program. Needs no application object.
Installation runningInstallation();

#pragma once

#include <QString>

/// Where the files of a program lie. All paths are absolute.
struct Installation {
    QString executable; ///< with links resolved
    QString moduleFolder; ///< of the modules that are loaded at their first use
    /// What a program folder is made from. Empty where the executable lies in one (build tree).
    QString templateFolder;
    /// The program folder that the installation itself is: the executable's, or a prefix that holds data.dat.
    /// Empty where each user has one of their own.
    QString programFolder;

    bool operator==(const Installation&) const = default;
};

/// The installation that `executable` is part of: one below a prefix when its folder is the prefix's folder
/// for executables and the template folder is there.
Installation installationOf(const QString& executable);

/// That of the running program. Needs no application object.
Installation runningInstallation();

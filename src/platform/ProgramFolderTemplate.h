#pragma once

#include <QString>

struct Installation;

/// The list of what is shipped into a program folder: a line for each file, its SHA-256 sum in hexadecimal
/// digits, two blanks and its path in the folder. It lies in the template folder and, as the stamp of what
/// was brought last, in each program folder made from it. data.dat is not on it.
inline constexpr char ShippedListName[] = "shipped.sha256";

/// Makes the user's program folder of an installed program by copying the template, with a link to the
/// executable. It appears complete or not at all. Nothing happens when there is anything of that name, a link
/// that leads nowhere included, nor where there is no template. Throws FileError.
void makeProgramFolder(const Installation& installation, const QString& programFolder);

/// Brings what is shipped by another version than the one before into the program folder, and points its link
/// to the executable. In its folders a file that the user has changed or made stays; nothing is removed, and
/// data.dat is never touched. What fails is tried again at the next start. Only while no other copy runs.
void refreshProgramFolder(const Installation& installation, const QString& programFolder);

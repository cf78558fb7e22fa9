#pragma once

#include <QString>

struct Installation;

/// Takes the copies of skins, sounds and help that version 1.1.0 put into the program folder of an installed
/// program out of it, with the list that it kept of them. A folder without that list costs one look. A file
/// that the user has changed stays, and so does one that the installation does not have. What fails is tried
/// again at the next start. Only while no other copy runs.
void removeFormerCopies(const Installation& installation, const QString& programFolder);

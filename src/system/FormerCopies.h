#pragma once

#include <QString>

struct Installation;

/// Removes the copies of skins, sounds and help that version 1.1.0 put into the user's program folder, by
/// the list that it kept there. Without that list it costs one look. Files that the user has changed, or
/// that the installation no longer ships, stay. What fails is tried again at the next start. To be called
/// only while no other copy of the program runs on that folder.
void removeFormerCopies(const Installation& installation, const QString& programFolder);

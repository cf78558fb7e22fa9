#pragma once

#include <QString>

// The pictures of a task's codes as indexes into the main image list, counted from 0, and the words for
// them.

inline constexpr int NoPicture = -1;
inline constexpr int ReminderPicture = 12;

/// The picture of a status; NoPicture for an unknown code.
int statusPicture(qint32 status);
/// The picture of a priority; NoPicture for an unknown code.
int periorityPicture(qint32 periority);

/// The word for a status, as in the list of choices; empty for an unknown code.
QString statusWord(qint32 status);
/// The word for a priority, as in the list of choices; empty for an unknown code.
QString periorityWord(qint32 periority);

/// What a built-in category picture shows, counted from 0; empty for an unknown one.
QString categoryPictureWord(int picture);

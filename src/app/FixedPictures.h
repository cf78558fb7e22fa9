#pragma once

#include <QIcon>

class ImageList;

/// Appends the fixed pictures of the main image list: twelve categories, the reminder bell, five statuses
/// and three priorities (indexes 0 to 20).
void appendFixedPictures(ImageList& images);

/// The sign of a task that repeats, with the bell of its reminder where that is on.
QIcon repeatingIcon(bool withReminder);

/// The program's own icon, in all sizes.
QIcon programIcon();

/// The same for title bars, without the sizes that only the about box shows.
QIcon programWindowIcon();

/// The mark of the about box, three times as wide as high.
QIcon logoIcon();

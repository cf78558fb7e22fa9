#pragma once

#include <QIcon>

/// Shown for a category whose picture is missing or unreadable.
QIcon standInPicture();

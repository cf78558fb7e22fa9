#pragma once

#include <QIcon>

/// Takes the place of a category's picture that is missing or unreadable.
QIcon standInPicture();
